// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <WidgetSupport.h>
#include <KeypadSupport.h>
#include <TestSupport.h>

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using ko::qtToolkit::dialog::Keypad;
using ko::qtToolkit::test::clickKeypad;
using ko::qtToolkit::test::closeButton;
using ko::qtToolkit::test::KeypadDriver;
using ko::qtToolkit::widget::GenericDataFader;
using ko::qtToolkit::widget::TextEntry;

namespace {

GenericDataFader *fader(const Keypad &dialog)
{
    return dialog.findChild<GenericDataFader *>();
}

// A press on the dialog's own border, outside the keypad.
const QPoint border(2, 2);

void dragBy(Keypad &dialog, const QPoint &delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::mousePress(&dialog, Qt::LeftButton, modifiers, border);
    ko::qtToolkit::test::moveHeld(&dialog, border + delta);
    QTest::mouseRelease(&dialog, Qt::LeftButton, Qt::NoModifier, border + delta);
}

} // namespace

class tst_Keypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void construction()
    {
        Keypad dialog;
        QCOMPARE(dialog.parent(), nullptr);
        QCOMPARE(dialog.metaObject()->className(), "ko::qtToolkit::dialog::Keypad");
        const Qt::WindowFlags flags = dialog.windowFlags();
        QCOMPARE(flags & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
        QVERIFY(flags.testFlag(Qt::NoDropShadowWindowHint));
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QCOMPARE(dialog.focusPolicy(), Qt::StrongFocus);

        auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(6, 6, 6, 6));
        auto *keypad = dialog.findChild<ko::qtToolkit::widget::Keypad *>();
        QVERIFY(keypad);
        QCOMPARE(keypad->parentWidget(), &dialog);
        QCOMPARE(layout->indexOf(keypad), 0);

        QPushButton *close = closeButton(dialog);
        QVERIFY(close);
        QVERIFY(dynamic_cast<ko::qtToolkit::widget::Button *>(close));
        QCOMPARE(close->parentWidget(), &dialog);
        QCOMPARE(layout->indexOf(close), -1);
        QCOMPARE(close->focusPolicy(), Qt::NoFocus);
    }

    void defaults()
    {
        Keypad dialog;
        QCOMPARE(dialog.text(), QStringLiteral("0"));
        QCOMPARE(dialog.dynamicWidget(), nullptr);
        QVERIFY(dialog.constrainedRect().isNull());
        QCOMPARE(dialog.constrainedOffset(), QPoint(0, 0));
    }

    void closeButtonSitsAtTheBottomRight_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("500 x 460") << QSize(500, 460);
        QTest::newRow("420 x 380") << QSize(420, 380);
    }

    void closeButtonSitsAtTheBottomRight()
    {
        QFETCH(QSize, size);
        Keypad dialog;
        dialog.setConstrainedRect(QRect(0, 0, 1000, 1000));
        dialog.show();
        dialog.resize(size);
        QCOMPARE(dialog.size(), size);
        QCOMPARE(closeButton(dialog)->pos(), QPoint(size.width() - 30, size.height() - 30));
        // Above the keypad, so that it can be touched.
        QCOMPARE(dialog.childAt(size.width() - 28, size.height() - 28), closeButton(dialog));
    }

    void forwardsToTheKeypad()
    {
        Keypad dialog;
        dialog.setText(QStringLiteral("42"));
        QCOMPARE(dialog.text(), QStringLiteral("42"));

        dialog.setMinimumData(-5.0f);
        dialog.setMaximumData(15.0f);
        dialog.setNumberOfDecimals(2);
        QCOMPARE(fader(dialog)->getMinimumData(), -5.0f);
        QCOMPARE(fader(dialog)->getMaximumData(), 15.0f);
        QCOMPARE(fader(dialog)->getNumberOfDecimals(), 2u);

        TextEntry entry(QStringLiteral("7"));
        dialog.setDynamicWidget(&entry);
        QCOMPARE(dialog.dynamicWidget(), &entry);
        QCOMPARE(dialog.text(), QStringLiteral("7.00"));
        QVERIFY(!fader(dialog)->isHidden());
        dialog.setText(QStringLiteral("1"));
        QCOMPARE(dialog.dynamicWidget(), nullptr);
    }

    void forwardsReplaceOnFirstKey()
    {
        Keypad dialog;
        auto *keypad = dialog.findChild<ko::qtToolkit::widget::Keypad *>();
        QVERIFY(keypad);
        QCOMPARE(dialog.replaceOnFirstKey(), false);
        dialog.setReplaceOnFirstKey(true);
        QCOMPARE(dialog.replaceOnFirstKey(), true);
        QCOMPARE(keypad->replaceOnFirstKey(), true);
        dialog.setReplaceOnFirstKey(false);
        QCOMPARE(keypad->replaceOnFirstKey(), false);
    }

    void replaceOnFirstKeyAfterOK()
    {
        // The dialog stays open after OK when the application shows it without exec().
        Keypad dialog;
        dialog.setConstrainedRect(QRect(0, 0, 800, 600));
        dialog.setReplaceOnFirstKey(true);
        dialog.show();
        dialog.setText(QStringLiteral("250.0"));
        QVERIFY(clickKeypad(dialog, QStringLiteral("3")));
        QCOMPARE(dialog.text(), QStringLiteral("3"));
        QVERIFY(clickKeypad(dialog, QStringLiteral("OK")));
        QVERIFY(clickKeypad(dialog, QStringLiteral("7")));
        QCOMPARE(dialog.text(), QStringLiteral("7"));
    }

    void forwardsToTheDraggable()
    {
        Keypad dialog;
        dialog.setConstrainedRect(QRect(10, 20, 300, 400));
        dialog.setConstrainedOffset(QPoint(5, 6));
        QCOMPARE(dialog.constrainedRect(), QRect(10, 20, 300, 400));
        QCOMPARE(dialog.constrainedOffset(), QPoint(5, 6));
    }

    void firstShowWithTheNullRect()
    {
        // Constrained from the start: with no rectangle set, the dialog lands at negative
        // coordinates, one width and one height off the origin.
        Keypad dialog;
        dialog.show();
        QCOMPARE(dialog.pos(), QPoint(-dialog.width(), -dialog.height()));
        QCOMPARE(dialog.constrainedOffset(), QPoint(-dialog.width(), -dialog.height()));
    }

    void showPlacesItInsideTheRect()
    {
        Keypad dialog;
        dialog.setConstrainedRect(QRect(100, 50, 800, 600));
        dialog.setConstrainedOffset(QPoint(30, 40));
        dialog.show();
        QCOMPARE(dialog.pos(), QPoint(130, 90));
        dialog.hide();
        dialog.setConstrainedOffset(QPoint(5000, 5000));
        dialog.show();
        QCOMPARE(dialog.pos(), QPoint(100 + 800 - dialog.width(), 50 + 600 - dialog.height()));
    }

    void drag_data()
    {
        QTest::addColumn<int>("room");
        QTest::addColumn<int>("moved");
        QTest::newRow("room enough: 50 pixels") << 200 << 50;
        QTest::newRow("right edge stops it after 20") << 20 << 20;
        QTest::newRow("right edge already reached") << 0 << 0;
    }

    void drag()
    {
        QFETCH(int, room);
        QFETCH(int, moved);

        Keypad dialog;
        dialog.setConstrainedRect(QRect(100, 50, 800, 600));
        dialog.show();
        // Leave `room` pixels between the dialog's right edge and the rectangle's.
        dialog.hide();
        dialog.setConstrainedOffset(QPoint(800 - dialog.width() - room, 10));
        dialog.show();
        const QPoint start = dialog.pos();
        QCOMPARE(start, QPoint(100 + 800 - dialog.width() - room, 60));

        dragBy(dialog, QPoint(50, 0));
        QCOMPARE(dialog.pos(), start + QPoint(moved, 0));
        QCOMPARE(dialog.constrainedOffset(), dialog.pos() - QPoint(100, 50));
    }

    void shiftPressDoesNotDrag()
    {
        Keypad dialog;
        dialog.setConstrainedRect(QRect(100, 50, 800, 600));
        dialog.setConstrainedOffset(QPoint(20, 20));
        dialog.show();
        dragBy(dialog, QPoint(50, 30), Qt::ShiftModifier);
        QCOMPARE(dialog.pos(), QPoint(120, 70));
    }

    void aPressOnAKeyDoesNotDrag()
    {
        Keypad dialog;
        dialog.setConstrainedRect(QRect(100, 50, 800, 600));
        dialog.setConstrainedOffset(QPoint(20, 20));
        dialog.show();
        QPushButton *five = ko::qtToolkit::test::keypadButton(dialog, QStringLiteral("5"));
        QTest::mousePress(five, Qt::LeftButton);
        ko::qtToolkit::test::moveHeld(five, five->rect().center() + QPoint(50, 0));
        QTest::mouseRelease(five, Qt::LeftButton);
        QCOMPARE(dialog.pos(), QPoint(120, 70));
    }

    void execResult_data()
    {
        QTest::addColumn<QString>("finish");
        QTest::addColumn<int>("result");
        QTest::newRow("close button rejects") << QStringLiteral("close") << int(QDialog::Rejected);
        QTest::newRow("OK accepts") << QStringLiteral("OK") << int(QDialog::Accepted);
        QTest::newRow("Escape rejects") << QStringLiteral("Escape") << int(QDialog::Rejected);
        QTest::newRow("Return accepts") << QStringLiteral("Return") << int(QDialog::Accepted);
    }

    void execResult()
    {
        QFETCH(QString, finish);
        QFETCH(int, result);

        Keypad dialog;
        dialog.setConstrainedRect(QRect(0, 0, 800, 600));
        KeypadDriver driver(dialog);
        bool done = false;
        driver.then([&](Keypad &keypad) {
            if (finish == QLatin1String("Escape"))
                QTest::keyClick(keypad.focusWidget(), Qt::Key_Escape);
            else if (finish == QLatin1String("Return"))
                QTest::keyClick(keypad.focusWidget(), Qt::Key_Return);
            else
                clickKeypad(keypad, finish);
            done = !keypad.isVisible();
        });
        QCOMPARE(dialog.exec(), result);
        QVERIFY(done);
        QCOMPARE(driver.openings, 1);
    }

    void hardwareKeysReachTheKeypad()
    {
        Keypad dialog;
        dialog.setConstrainedRect(QRect(0, 0, 800, 600));
        dialog.setText(QStringLiteral("12"));
        KeypadDriver driver(dialog);
        QString focused;
        QString typed;
        driver.then([&](Keypad &keypad) {
            focused = QString::fromLatin1(keypad.focusWidget()->metaObject()->className());
            QTest::keyClicks(keypad.focusWidget(), QStringLiteral("3.5"));
            typed = keypad.text();
            QTest::keyClick(keypad.focusWidget(), Qt::Key_Enter);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(focused, QStringLiteral("ko::qtToolkit::widget::Keypad"));
        QCOMPARE(typed, QStringLiteral("3.5"));
    }

    void liveUpdateOfTheDynamicWidget_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::newRow("one decimal") << 1 << QStringLiteral("42.5");
        QTest::newRow("through the entry's validator") << 2 << QStringLiteral("42.50");
    }

    void liveUpdateOfTheDynamicWidget()
    {
        QFETCH(int, decimals);
        QFETCH(QString, text);

        Keypad dialog;
        ko::qtToolkit::common::DoubleValidator validator(0.0, 100.0, decimals);
        TextEntry entry;
        entry.setValidator(&validator);
        entry.setText(QStringLiteral("12.5"));
        dialog.setDynamicWidget(&entry);
        QSignalSpy spy(&entry, &TextEntry::textChanged);

        // A move of the fader, as a finger makes it.
        fader(dialog)->setValue(425);
        QCOMPARE(entry.text(), text);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), text);
    }

    void withoutDynamicWidgetNothingIsUpdated()
    {
        Keypad dialog;
        TextEntry entry(QStringLiteral("12.5"));
        dialog.setDynamicWidget(&entry);
        dialog.setText(QStringLiteral("3"));
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        fader(dialog)->setValue(425);
        QCOMPARE(dialog.text(), QStringLiteral("42.5"));
        QCOMPARE(spy.count(), 0);
    }

    void reopensWhereItWasLeft()
    {
        Keypad dialog;
        dialog.setConstrainedRect(QRect(100, 50, 800, 600));
        KeypadDriver driver(dialog);
        QPoint left;
        QPoint reopened;
        driver.then([&](Keypad &keypad) {
            dragBy(keypad, QPoint(40, 25));
            left = keypad.pos();
            clickKeypad(keypad, QStringLiteral("close"));
        });
        driver.then([&](Keypad &keypad) {
            reopened = keypad.pos();
            clickKeypad(keypad, QStringLiteral("close"));
        });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(left, QPoint(140, 75));
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(reopened, QPoint(140, 75));
        QCOMPARE(dialog.constrainedOffset(), QPoint(40, 25));
    }
};

QTEST_MAIN(tst_Keypad)
#include "tst_Keypad.moc"
