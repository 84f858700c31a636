// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <KeypadSupport.h>

#include <QTest>

using ko::qtToolkit::singleton::Keypad;
using ko::qtToolkit::test::clickKeypad;
using ko::qtToolkit::test::KeypadDriver;
using ko::qtToolkit::test::sharedKeypadDialog;

class tst_Keypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Before any test function changes the shared keypad: the state of a fresh process.
    void initTestCase()
    {
        Keypad *keypad = Keypad::instance();
        QCOMPARE(keypad->text(), QStringLiteral("0"));
        QCOMPARE(keypad->dynamicWidget(), nullptr);
        QVERIFY(keypad->constrainedRect().isNull());
    }

    void init()
    {
        Keypad::instance()->setText(QStringLiteral("0"));
        Keypad::instance()->setConstrainedRect(QRect(0, 0, 800, 600));
    }

    void instanceIsOneParentlessObject()
    {
        Keypad *keypad = Keypad::instance();
        QVERIFY(keypad);
        QCOMPARE(Keypad::instance(), keypad);
        QCOMPARE(keypad->parent(), nullptr);
        QCOMPARE(keypad->metaObject()->className(), "ko::qtToolkit::singleton::Keypad");

        // One dialog, without parent, made once.
        ko::qtToolkit::dialog::Keypad *dialog = sharedKeypadDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->parent(), nullptr);
        QCOMPARE(sharedKeypadDialog(), dialog);
    }

    void textProperty()
    {
        Keypad *keypad = Keypad::instance();
        const int index = keypad->metaObject()->indexOfProperty("text");
        QVERIFY(index >= 0);
        QVERIFY(keypad->metaObject()->property(index).isWritable());
        QVERIFY(keypad->setProperty("text", QStringLiteral("15")));
        QCOMPARE(keypad->text(), QStringLiteral("15"));
        QCOMPARE(sharedKeypadDialog()->text(), QStringLiteral("15"));
        QCOMPARE(keypad->property("text").toString(), QStringLiteral("15"));
    }

    void forwardsToTheDialog()
    {
        Keypad *keypad = Keypad::instance();
        ko::qtToolkit::widget::TextEntry entry(QStringLiteral("3"));
        keypad->setDynamicWidget(&entry);
        QCOMPARE(keypad->dynamicWidget(), &entry);
        QCOMPARE(sharedKeypadDialog()->dynamicWidget(), &entry);
        QCOMPARE(keypad->text(), QStringLiteral("3.00"));
        keypad->setText(QStringLiteral("8"));
        QCOMPARE(keypad->dynamicWidget(), nullptr);

        keypad->setConstrainedRect(QRect(20, 30, 640, 480));
        QCOMPARE(keypad->constrainedRect(), QRect(20, 30, 640, 480));
        QCOMPARE(sharedKeypadDialog()->constrainedRect(), QRect(20, 30, 640, 480));
    }

    void replaceOnFirstKey()
    {
        Keypad *keypad = Keypad::instance();
        QCOMPARE(keypad->replaceOnFirstKey(), false);
        keypad->setReplaceOnFirstKey(true);
        QCOMPARE(keypad->replaceOnFirstKey(), true);
        QCOMPARE(sharedKeypadDialog()->replaceOnFirstKey(), true);

        // An entry showing 250.0 opens the keypad; the first key starts a new number.
        ko::qtToolkit::widget::TextEntry entry;
        entry.setText(QStringLiteral("250.0"));
        keypad->setDynamicWidget(&entry);
        KeypadDriver driver(*sharedKeypadDialog());
        driver.then([&](ko::qtToolkit::dialog::Keypad &dialog) {
            clickKeypad(dialog, QStringLiteral("3"));
            clickKeypad(dialog, QStringLiteral("OK"));
        });
        QCOMPARE(keypad->exec(), int(QDialog::Accepted));
        QCOMPARE(keypad->text(), QStringLiteral("3"));
        QCOMPARE(entry.text(), QStringLiteral("3.00"));

        keypad->setReplaceOnFirstKey(false);
        keypad->setText(QStringLiteral("0"));
        QCOMPARE(sharedKeypadDialog()->replaceOnFirstKey(), false);
    }

    void execReturnsTheDialogsResult_data()
    {
        QTest::addColumn<QString>("finish");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("text");
        QTest::newRow("OK") << QStringLiteral("OK") << int(QDialog::Accepted) << QStringLiteral("47");
        QTest::newRow("close button") << QStringLiteral("close") << int(QDialog::Rejected) << QStringLiteral("47");
    }

    void execReturnsTheDialogsResult()
    {
        QFETCH(QString, finish);
        QFETCH(int, result);
        QFETCH(QString, text);

        Keypad *keypad = Keypad::instance();
        keypad->setText(QStringLiteral("12"));
        KeypadDriver driver(*sharedKeypadDialog());
        driver.then([&](ko::qtToolkit::dialog::Keypad &dialog) {
            clickKeypad(dialog, QStringLiteral("4"));
            clickKeypad(dialog, QStringLiteral("7"));
            clickKeypad(dialog, finish);
        });
        QCOMPARE(keypad->exec(), result);
        QCOMPARE(driver.openings, 1);
        QCOMPARE(keypad->text(), text);
    }

    void opensInsideTheConstrainedRect()
    {
        Keypad *keypad = Keypad::instance();
        keypad->setConstrainedRect(QRect(200, 100, 600, 500));
        KeypadDriver driver(*sharedKeypadDialog());
        QRect geometry;
        driver.then([&](ko::qtToolkit::dialog::Keypad &dialog) {
            geometry = dialog.frameGeometry();
            clickKeypad(dialog, QStringLiteral("close"));
        });
        keypad->exec();
        QVERIFY2(QRect(200, 100, 600, 500).contains(geometry), qPrintable(QStringLiteral("%1,%2 %3x%4")
                                                                             .arg(geometry.x())
                                                                             .arg(geometry.y())
                                                                             .arg(geometry.width())
                                                                             .arg(geometry.height())));
    }
};

QTEST_MAIN(tst_Keypad)
#include "tst_Keypad.moc"
