// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>

#include <TestSupport.h>

#include <QButtonGroup>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using ko::qtToolkit::widget::Button;
using ko::qtToolkit::widget::ButtonGroup;

namespace {

using Toggles = QList<QPair<int, bool>>;

Toggles toggles(const QSignalSpy &spy)
{
    Toggles result;
    for (const QList<QVariant> &arguments : spy)
        result.append({arguments.at(0).toInt(), arguments.at(1).toBool()});
    return result;
}

QStringList captions(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result << QStringLiteral("Button %1").arg(i);
    return result;
}

} // namespace

class tst_ButtonGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        ButtonGroup group;
        QVERIFY(group.buttons().isEmpty());
        QCOMPARE(group.button(0), nullptr);
        QVERIFY(!group.property("TestID").isValid());

        auto *layout = qobject_cast<QVBoxLayout *>(group.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->alignment(), Qt::AlignTop);

        auto *buttonGroup = group.findChild<QButtonGroup *>();
        QVERIFY(buttonGroup);
        QVERIFY(buttonGroup->exclusive());
        QCOMPARE(group.metaObject()->className(), "ko::qtToolkit::widget::ButtonGroup");
    }

    void addButton_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::newRow("unchecked") << false;
        QTest::newRow("checked") << true;
    }

    void addButton()
    {
        QFETCH(bool, checked);
        ButtonGroup group;
        Button *button = group.addButton(QStringLiteral("Mute"), checked);
        QVERIFY(button);
        QCOMPARE(button->text(), QStringLiteral("Mute"));
        QVERIFY(button->isCheckable());
        QCOMPARE(button->isChecked(), checked);
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(button->parentWidget(), &group);
        QCOMPARE(group.layout()->indexOf(button), 0);
        QVERIFY(!button->property("TestID").isValid());
        QCOMPARE(group.buttons(), QList<QAbstractButton *>{button});
    }

    void idsCountFromZero()
    {
        ButtonGroup group;
        Button *first = group.addButton(QStringLiteral("A"));
        Button *second = group.addButton(QStringLiteral("B"));
        QCOMPARE(group.button(0), first);
        QCOMPARE(group.button(1), second);
        QCOMPARE(group.button(2), nullptr);
        QCOMPARE(group.button(-1), nullptr);
        QCOMPARE(group.buttons(), (QList<QAbstractButton *>{first, second}));
    }

    void styleHooks_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("single button") << 1;
        QTest::newRow("two buttons") << 2;
        QTest::newRow("three buttons") << 3;
        QTest::newRow("five buttons") << 5;
    }

    // Only the first button is "top" and only the last is "bottom"; the buttons between have
    // both false, and a single button has both.
    void styleHooks()
    {
        QFETCH(int, count);
        ButtonGroup group;
        for (const QString &caption : captions(count))
            group.addButton(caption);
        const QList<QAbstractButton *> buttons = group.buttons();
        QCOMPARE(buttons.size(), count);
        for (int i = 0; i < count; ++i) {
            QCOMPARE(buttons.at(i)->property("top"), QVariant(i == 0));
            QCOMPARE(buttons.at(i)->property("bottom"), QVariant(i == count - 1));
        }
    }

    // The button that stops being the last one loses its rounded corners on screen at once.
    void styleHooksReachTheStyleSheet()
    {
        qApp->setStyleSheet(ko::qtToolkit::test::toolkitStyleSheet());
        ButtonGroup group;
        group.addButton(QStringLiteral("A"));
        Button *middle = group.addButton(QStringLiteral("B"));
        group.resize(120, 200);
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));

        auto bottomLeftCorner = [&] {
            const QImage image = middle->grab().toImage();
            return image.pixelColor(0, image.height() - 1);
        };
        const QColor border(0x57, 0x57, 0x57);
        QVERIFY(bottomLeftCorner() != border);

        group.addButton(QStringLiteral("C"));
        QCOMPARE(bottomLeftCorner(), border);
        qApp->setStyleSheet(QString());
    }

    void buttonsStackFromTheTopWithoutGaps()
    {
        ButtonGroup group;
        for (const QString &caption : captions(3))
            group.addButton(caption);
        group.resize(120, 400);
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        const QList<QAbstractButton *> buttons = group.buttons();
        QCOMPARE(buttons.at(0)->y(), 0);
        QCOMPARE(buttons.at(1)->y(), buttons.at(0)->geometry().bottom() + 1);
        QCOMPARE(buttons.at(2)->y(), buttons.at(1)->geometry().bottom() + 1);
        QVERIFY(buttons.at(2)->geometry().bottom() < group.height() / 2);
        for (QAbstractButton *button : buttons)
            QCOMPARE(button->width(), group.width());
    }

    void clicksAreExclusive()
    {
        ButtonGroup group;
        for (const QString &caption : captions(3))
            group.addButton(caption);
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        QSignalSpy spy(&group, &ButtonGroup::buttonToggled);

        QTest::mouseClick(group.button(1), Qt::LeftButton);
        QCOMPARE(toggles(spy), (Toggles{{1, true}}));
        spy.clear();

        // The group unchecks the old button before the new one reports its check.
        QTest::mouseClick(group.button(2), Qt::LeftButton);
        QCOMPARE(toggles(spy), (Toggles{{1, false}, {2, true}}));
        QVERIFY(!group.button(1)->isChecked());
        QVERIFY(group.button(2)->isChecked());
        spy.clear();

        // Clicking the checked button does not uncheck it.
        QTest::mouseClick(group.button(2), Qt::LeftButton);
        QVERIFY(spy.isEmpty());
        QVERIFY(group.button(2)->isChecked());
    }

    // A button joining checked takes the check from the button that had it.
    void addCheckedButtonUnchecksThePreviousOne()
    {
        ButtonGroup group;
        Button *first = group.addButton(QStringLiteral("A"), true);
        QSignalSpy spy(&group, &ButtonGroup::buttonToggled);
        Button *second = group.addButton(QStringLiteral("B"), true);
        QVERIFY(!first->isChecked());
        QVERIFY(second->isChecked());
        QCOMPARE(toggles(spy), (Toggles{{0, false}}));
    }

    void buttonToggledCarriesTheIdOfItsButton()
    {
        ButtonGroup group;
        for (const QString &caption : captions(4))
            group.addButton(caption);
        QSignalSpy spy(&group, &ButtonGroup::buttonToggled);
        group.button(3)->setChecked(true);
        group.button(0)->setChecked(true);
        QCOMPARE(toggles(spy), (Toggles{{3, true}, {3, false}, {0, true}}));
    }

    void setTestID_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("two buttons") << QStringLiteral("Mode") << QStringList{QStringLiteral("A"), QStringLiteral("B")}
                                     << QStringList{QStringLiteral("Mode.A"), QStringLiteral("Mode.B")};
        QTest::newRow("caption with spaces") << QStringLiteral("Gain") << QStringList{QStringLiteral("On air")}
                                             << QStringList{QStringLiteral("Gain.On air")};
        QTest::newRow("empty identifier") << QString() << QStringList{QStringLiteral("A")}
                                          << QStringList{QStringLiteral(".A")};
        // The caption fills the lowest marker left after the identifier was put in.
        QTest::newRow("identifier with a marker") << QStringLiteral("Gain%1") << QStringList{QStringLiteral("A")}
                                                  << QStringList{QStringLiteral("GainA.%2")};
        QTest::newRow("no buttons") << QStringLiteral("Mode") << QStringList() << QStringList();
    }

    void setTestID()
    {
        QFETCH(QString, id);
        QFETCH(QStringList, texts);
        QFETCH(QStringList, expected);
        ButtonGroup group;
        for (const QString &text : texts)
            group.addButton(text);
        group.setTestID(id);
        QCOMPARE(group.property("TestID"), QVariant(id));
        const QList<QAbstractButton *> buttons = group.buttons();
        for (int i = 0; i < buttons.size(); ++i)
            QCOMPARE(buttons.at(i)->property("TestID").toString(), expected.at(i));
    }

    // Identifiers are composed once: later buttons get none, renamed buttons keep theirs.
    void testIDsAreComposedOnce()
    {
        ButtonGroup group;
        Button *a = group.addButton(QStringLiteral("A"));
        group.addButton(QStringLiteral("B"));
        group.setTestID(QStringLiteral("Mode"));
        Button *late = group.addButton(QStringLiteral("C"));
        QVERIFY(!late->property("TestID").isValid());
        a->setText(QStringLiteral("Renamed"));
        QCOMPARE(a->property("TestID").toString(), QStringLiteral("Mode.A"));

        group.setTestID(QStringLiteral("Input"));
        QCOMPARE(a->property("TestID").toString(), QStringLiteral("Input.Renamed"));
        QCOMPARE(late->property("TestID").toString(), QStringLiteral("Input.C"));
    }
};

QTEST_MAIN(tst_ButtonGroup)
#include "tst_ButtonGroup.moc"
