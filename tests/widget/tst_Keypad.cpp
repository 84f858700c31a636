// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/common/IntValidator.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <KeypadSupport.h>
#include <TestSupport.h>

#include <QGridLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using ko::qtToolkit::test::keypadButton;
using ko::qtToolkit::widget::Button;
using ko::qtToolkit::widget::GenericDataFader;
using ko::qtToolkit::widget::Keypad;
using ko::qtToolkit::widget::TextEntry;

namespace {

QLineEdit *display(const Keypad &keypad)
{
    return keypad.findChild<QLineEdit *>();
}

GenericDataFader *fader(const Keypad &keypad)
{
    return keypad.findChild<GenericDataFader *>();
}

// The name of a key in the tables below: a button label, or a key a keyboard has but the
// keypad does not.
struct KeyName
{
    const char *name;
    Qt::Key key;
    const char *label; // null when only a hardware keyboard has the key
};

const KeyName keyNames[] = {
    {"0", Qt::Key_0, "0"},
    {"1", Qt::Key_1, "1"},
    {"2", Qt::Key_2, "2"},
    {"3", Qt::Key_3, "3"},
    {"4", Qt::Key_4, "4"},
    {"5", Qt::Key_5, "5"},
    {"6", Qt::Key_6, "6"},
    {"7", Qt::Key_7, "7"},
    {"8", Qt::Key_8, "8"},
    {"9", Qt::Key_9, "9"},
    {".", Qt::Key_Comma, "."},
    {"-", Qt::Key_Minus, "-"},
    {"K", Qt::Key_K, "K"},
    {"DEL", Qt::Key_Backspace, "DEL"},
    {"OK", Qt::Key_Enter, "OK"},
    {"FullStop", Qt::Key_Period, nullptr},
    {"Delete", Qt::Key_Delete, nullptr},
    {"Return", Qt::Key_Return, nullptr},
    {"Escape", Qt::Key_Escape, nullptr},
    {"Tab", Qt::Key_Tab, nullptr},
    {"A", Qt::Key_A, nullptr},
    {"Plus", Qt::Key_Plus, nullptr},
};

const KeyName *keyName(const QString &name)
{
    for (const KeyName &k : keyNames) {
        if (name == QLatin1String(k.name))
            return &k;
    }
    return nullptr;
}

enum class Input { Buttons, Keyboard };

// Presses the named keys one by one and returns the display after each.
QStringList press(Keypad &keypad, const QStringList &names, Input input)
{
    QStringList texts;
    for (const QString &name : names) {
        const KeyName *k = keyName(name);
        if (!k) {
            texts << QStringLiteral("unknown key %1").arg(name);
            continue;
        }
        if (input == Input::Buttons && k->label) {
            QPushButton *b = keypadButton(keypad, QLatin1String(k->label));
            if (!b) {
                texts << QStringLiteral("no button %1").arg(name);
                continue;
            }
            QTest::mouseClick(b, Qt::LeftButton);
        } else {
            QTest::keyClick(&keypad, k->key);
        }
        texts << keypad.text();
    }
    return texts;
}

// A window that records the key presses that reach it.
class Parent : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override { keys << event->key(); }
};

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
        Keypad keypad;
        QCOMPARE(keypad.title(), QStringLiteral("Numeric Keypad"));
        QCOMPARE(keypad.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(keypad.metaObject()->className(), "ko::qtToolkit::widget::Keypad");
        QCOMPARE(keypad.text(), QStringLiteral("0"));
        QCOMPARE(keypad.dynamicWidget(), nullptr);

        QLineEdit *line = display(keypad);
        QVERIFY(line);
        QCOMPARE(line->parentWidget(), &keypad);
        QCOMPARE(line->alignment(), Qt::AlignCenter);
        QCOMPARE(line->focusPolicy(), Qt::NoFocus);
        QCOMPARE(line->text(), QStringLiteral("0"));

        GenericDataFader *slider = fader(keypad);
        QVERIFY(slider);
        QCOMPARE(slider->parentWidget(), &keypad);
        QCOMPARE(slider->orientation(), Qt::Vertical);
        QCOMPARE(slider->getMinimumData(), 0.0f);
        QCOMPARE(slider->getMaximumData(), 100.0f);
        QCOMPARE(slider->getNumberOfDecimals(), 1u);
        QVERIFY(slider->isHidden());

        auto *grid = qobject_cast<QGridLayout *>(keypad.layout());
        QVERIFY(grid);
        QCOMPARE(grid->contentsMargins(), QMargins(4, 4, 4, 4));
        QCOMPARE(grid->spacing(), 4);
    }

    void keysAndGrid_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("rowSpan");

        QTest::newRow("7") << QStringLiteral("7") << 1 << 0 << 1;
        QTest::newRow("8") << QStringLiteral("8") << 1 << 1 << 1;
        QTest::newRow("9") << QStringLiteral("9") << 1 << 2 << 1;
        QTest::newRow("DEL") << QStringLiteral("DEL") << 1 << 3 << 1;
        QTest::newRow("4") << QStringLiteral("4") << 2 << 0 << 1;
        QTest::newRow("5") << QStringLiteral("5") << 2 << 1 << 1;
        QTest::newRow("6") << QStringLiteral("6") << 2 << 2 << 1;
        QTest::newRow("K") << QStringLiteral("K") << 2 << 3 << 1;
        QTest::newRow("1") << QStringLiteral("1") << 3 << 0 << 1;
        QTest::newRow("2") << QStringLiteral("2") << 3 << 1 << 1;
        QTest::newRow("3") << QStringLiteral("3") << 3 << 2 << 1;
        QTest::newRow("OK") << QStringLiteral("OK") << 3 << 3 << 2;
        QTest::newRow("0") << QStringLiteral("0") << 4 << 0 << 1;
        QTest::newRow("point") << QStringLiteral(".") << 4 << 1 << 1;
        QTest::newRow("minus") << QStringLiteral("-") << 4 << 2 << 1;
    }

    void keysAndGrid()
    {
        QFETCH(QString, label);
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(int, rowSpan);

        Keypad keypad;
        QPushButton *b = keypadButton(keypad, label);
        QVERIFY(b);
        QVERIFY(dynamic_cast<Button *>(b));
        QCOMPARE(b->focusPolicy(), Qt::NoFocus);
        QCOMPARE(b->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(b->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

        auto *grid = qobject_cast<QGridLayout *>(keypad.layout());
        int r = -1;
        int c = -1;
        int rs = -1;
        int cs = -1;
        grid->getItemPosition(grid->indexOf(b), &r, &c, &rs, &cs);
        QCOMPARE(r, row);
        QCOMPARE(c, column);
        QCOMPARE(rs, rowSpan);
        QCOMPARE(cs, 1);
    }

    void displayAndFaderPlaces()
    {
        Keypad keypad;
        auto *grid = qobject_cast<QGridLayout *>(keypad.layout());
        int r = -1;
        int c = -1;
        int rs = -1;
        int cs = -1;
        grid->getItemPosition(grid->indexOf(display(keypad)), &r, &c, &rs, &cs);
        QCOMPARE(QVector<int>({r, c, rs, cs}), QVector<int>({0, 0, 1, 4}));
        grid->getItemPosition(grid->indexOf(fader(keypad)), &r, &c, &rs, &cs);
        QCOMPARE(QVector<int>({r, c, rs, cs}), QVector<int>({0, 4, 5, 1}));
        QCOMPARE(keypad.findChildren<QPushButton *>().size(), 15);
    }

    // The same key sequence typed on the keys and on a hardware keyboard gives the same
    // display after every key.
    void keySequences_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("texts");

        const auto keys = [](const char *spaced) { return QString::fromLatin1(spaced).split(QLatin1Char(' ')); };

        QTest::newRow("first key after show replaces the text")
            << QStringLiteral("12") << true << keys("5 5") << keys("5 55");
        QTest::newRow("first key after construction replaces the text")
            << QStringLiteral("12") << false << keys("3") << keys("3");
        QTest::newRow("digit on 0 replaces it") << QStringLiteral("0") << true << keys("0 7") << keys("0 7");
        QTest::newRow("leading zeros are replaced") << QStringLiteral("0") << true << keys("0 0 5") << keys("0 0 5");
        QTest::newRow("digit after 0. is appended") << QString() << true << keys("0 . 7") << keys("0 0. 0.7");
        QTest::newRow("digit after - is appended") << QString() << true << keys("- 7") << keys("- -7");
        QTest::newRow("zero after - is appended") << QString() << true << keys("- 0 5") << keys("- -0 -05");
        QTest::newRow("minus on 12") << QString() << true << keys("1 2 -") << keys("1 12 -12");
        QTest::newRow("minus does not toggle back") << QString() << true << keys("1 2 - -") << keys("1 12 -12 -12");
        QTest::newRow("minus on 0") << QString() << true << keys("0 -") << keys("0 -0");
        QTest::newRow("minus on a fraction") << QString() << true << keys("0 . 5 -") << keys("0 0. 0.5 -0.5");
        QTest::newRow("minus on seven digits gives six significant digits")
            << QString() << true << keys("1 2 3 4 5 6 7 -")
            << keys("1 12 123 1234 12345 123456 1234567 -1.23457e+06");
        // Forty nines are beyond the float range: minus is put in front of the text.
        QTest::newRow("minus on a number beyond the float range")
            << QString(39, QLatin1Char('9')) << true << QStringList{QStringLiteral("OK"), QStringLiteral("9"), QStringLiteral("-")}
            << QStringList{QString(39, QLatin1Char('9')), QString(40, QLatin1Char('9')),
                           QLatin1Char('-') + QString(40, QLatin1Char('9'))};
        QTest::newRow("minus on a negative number beyond the float range")
            << QString(39, QLatin1Char('9')) << true << QStringList{QStringLiteral("OK"), QStringLiteral("-"), QStringLiteral("9"), QStringLiteral("-")}
            << QStringList{QString(39, QLatin1Char('9')), QLatin1Char('-') + QString(39, QLatin1Char('9')),
                           QLatin1Char('-') + QString(40, QLatin1Char('9')), QLatin1Char('-') + QString(40, QLatin1Char('9'))};
        QTest::newRow("K on 12") << QString() << true << keys("1 2 K") << keys("1 12 12000");
        QTest::newRow("K on 0 does nothing") << QString() << true << keys("0 K") << keys("0 0");
        QTest::newRow("K as first key empties the display") << QStringLiteral("12") << true << keys("K") << QStringList{QString()};
        QTest::newRow("two points") << QString() << true << keys("1 . .") << keys("1 1. 1..");
        QTest::newRow("two points count as 0 for the next key")
            << QString() << true << keys("1 . . 5 K") << keys("1 1. 1.. 1..5 1..5");
        QTest::newRow("backspace") << QString() << true << keys("1 2 3 DEL DEL") << keys("1 12 123 12 1");
        QTest::newRow("backspace first keeps the text") << QStringLiteral("12") << true << keys("DEL 5")
                                                        << keys("1 15");
        QTest::newRow("backspace on empty stays empty")
            << QString() << true << keys("DEL DEL") << QStringList{QString(), QString()};
        QTest::newRow("OK keeps the typed text") << QString() << true << keys("4 2 OK") << keys("4 42 42");
        QTest::newRow("OK first does not clear") << QStringLiteral("12") << true << keys("OK 5") << keys("12 125");
    }

    void keySequences()
    {
        QFETCH(QString, start);
        QFETCH(bool, shown);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, texts);

        for (const Input input : {Input::Buttons, Input::Keyboard}) {
            QWidget window;
            auto *keypad = new Keypad(&window);
            if (shown)
                window.show();
            keypad->setText(start);
            QCOMPARE(press(*keypad, keys, input), texts);
        }
    }

    void keyboardOnlyKeys_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("texts");

        const auto keys = [](const char *spaced) { return QString::fromLatin1(spaced).split(QLatin1Char(' ')); };

        QTest::newRow("full stop is the point") << keys("1 FullStop 5") << keys("1 1. 1.5");
        QTest::newRow("delete acts as backspace") << keys("1 2 Delete") << keys("1 12 1");
        QTest::newRow("tab is ignored") << keys("1 Tab 2") << keys("1 1 12");
        QTest::newRow("letters are ignored") << keys("1 A 2") << keys("1 1 12");
        QTest::newRow("plus is ignored") << keys("1 Plus") << keys("1 1");
        QTest::newRow("ignored key keeps replace next") << keys("Tab 5") << keys("12 5");
        QTest::newRow("escape keeps the text") << keys("4 Escape 2") << keys("4 4 42");
        QTest::newRow("escape first does not clear") << keys("Escape 5") << keys("12 125");
    }

    void keyboardOnlyKeys()
    {
        QFETCH(QStringList, keys);
        QFETCH(QStringList, texts);

        QWidget window;
        auto *keypad = new Keypad(&window);
        window.show();
        keypad->setText(QStringLiteral("12"));
        QCOMPARE(press(*keypad, keys, Input::Keyboard), texts);
    }

    void returnActsAsEnter_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("OK button") << QStringLiteral("OK");
        QTest::newRow("Enter") << QStringLiteral("EnterKey");
        QTest::newRow("Return") << QStringLiteral("Return");
    }

    void returnActsAsEnter()
    {
        QFETCH(QString, key);
        Keypad keypad;
        QSignalSpy accepted(&keypad, &Keypad::accepted);
        QSignalSpy rejected(&keypad, &Keypad::rejected);
        if (key == QLatin1String("EnterKey"))
            QTest::keyClick(&keypad, Qt::Key_Enter);
        else
            press(keypad, {key}, Input::Buttons);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(rejected.count(), 0);
    }

    void escapeRejects()
    {
        Keypad keypad;
        keypad.setText(QStringLiteral("12"));
        QSignalSpy accepted(&keypad, &Keypad::accepted);
        QSignalSpy rejected(&keypad, &Keypad::rejected);
        QSignalSpy updated(&keypad, &Keypad::valueUpdated);
        QTest::keyClick(&keypad, Qt::Key_Escape);
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(accepted.count(), 0);
        QCOMPARE(updated.count(), 0);
        QCOMPARE(keypad.text(), QStringLiteral("12"));
    }

    void keysAloneDoNotTouchTheFader()
    {
        Keypad keypad;
        QSignalSpy updated(&keypad, &Keypad::valueUpdated);
        press(keypad, {QStringLiteral("5"), QStringLiteral("0")}, Input::Buttons);
        QCOMPARE(fader(keypad)->getData(), 0.0f);
        QCOMPARE(updated.count(), 0);
    }

    void enterClampsThroughTheFader()
    {
        Keypad keypad;
        keypad.setText(QStringLiteral("250"));
        QStringList seen;
        connect(&keypad, &Keypad::valueUpdated, this,
                [&] { seen << QStringLiteral("valueUpdated ") + keypad.text(); });
        connect(&keypad, &Keypad::accepted, this, [&] { seen << QStringLiteral("accepted ") + keypad.text(); });

        press(keypad, {QStringLiteral("OK")}, Input::Buttons);
        QCOMPARE(seen, QStringList({QStringLiteral("valueUpdated 100.0"), QStringLiteral("accepted 100.0")}));
        QCOMPARE(fader(keypad)->getData(), 100.0f);
        // After the handler the typed text is back.
        QCOMPARE(keypad.text(), QStringLiteral("250"));

        // The fader already holds the value: only accepted, and it sees the typed text.
        seen.clear();
        press(keypad, {QStringLiteral("OK")}, Input::Buttons);
        QCOMPARE(seen, QStringList({QStringLiteral("accepted 250")}));
    }

    void enterFormatsWithTheFadersDecimals()
    {
        Keypad keypad;
        keypad.setMinimumData(-10.0f);
        keypad.setMaximumData(10.0f);
        keypad.setNumberOfDecimals(2);
        keypad.setText(QStringLiteral("-3.14159"));
        QString during;
        connect(&keypad, &Keypad::accepted, this, [&] { during = keypad.text(); });
        QTest::keyClick(&keypad, Qt::Key_Return);
        QCOMPARE(during, QStringLiteral("-3.14"));
        QCOMPARE(keypad.text(), QStringLiteral("-3.14159"));
    }

    // A number formatted with billions of decimals stopped the application; 17 are a double's.
    void decimalsBeyondADoubleAreBounded()
    {
        Keypad keypad;
        keypad.setMinimumData(0.0f);
        keypad.setMaximumData(10.0f);
        keypad.setNumberOfDecimals(2147483647u);
        QCOMPARE(fader(keypad)->getNumberOfDecimals(), 17u);
        QString during;
        connect(&keypad, &Keypad::accepted, this, [&] { during = keypad.text(); });
        QTest::keyClick(&keypad, Qt::Key_5);
        QTest::keyClick(&keypad, Qt::Key_Return);
        QVERIFY2(during.size() - during.indexOf(QLatin1Char('.')) - 1 == 17, qPrintable(during));
    }

    void unparsableTextEntersAsZero()
    {
        Keypad keypad;
        keypad.setMinimumData(-10.0f);
        keypad.setMaximumData(10.0f);
        fader(keypad)->setData(5.0f);
        keypad.setText(QStringLiteral("1..5"));
        QString during;
        connect(&keypad, &Keypad::valueUpdated, this, [&] { during = keypad.text(); });
        QTest::keyClick(&keypad, Qt::Key_Enter);
        QCOMPARE(during, QStringLiteral("0.0"));
        QCOMPARE(fader(keypad)->getData(), 0.0f);
    }

    void faderMovesUpdateTheDisplay()
    {
        Keypad keypad;
        QSignalSpy updated(&keypad, &Keypad::valueUpdated);
        fader(keypad)->setValue(425);
        QCOMPARE(keypad.text(), QStringLiteral("42.5"));
        QCOMPARE(updated.count(), 1);
    }

    void rangeAndDecimalsGoToTheFader()
    {
        Keypad keypad;
        keypad.setMinimumData(-20.0f);
        keypad.setMaximumData(20.0f);
        keypad.setNumberOfDecimals(2);
        GenericDataFader *slider = fader(keypad);
        QCOMPARE(slider->getMinimumData(), -20.0f);
        QCOMPARE(slider->getMaximumData(), 20.0f);
        QCOMPARE(slider->getNumberOfDecimals(), 2u);
        QCOMPARE(slider->minimum(), -2000);
        QCOMPARE(slider->maximum(), 2000);
    }

    void setTextHidesTheFaderAndForgetsTheEntry()
    {
        Keypad keypad;
        TextEntry entry(QStringLiteral("12"));
        keypad.setDynamicWidget(&entry);
        QVERIFY(!fader(keypad)->isHidden());
        keypad.setText(QStringLiteral("7"));
        QCOMPARE(keypad.text(), QStringLiteral("7"));
        QVERIFY(fader(keypad)->isHidden());
        QCOMPARE(keypad.dynamicWidget(), nullptr);
    }

    void setTextDoesNotSetReplaceNext()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        window.show();
        QCOMPARE(press(*keypad, {QStringLiteral("5")}, Input::Buttons), QStringList{QStringLiteral("5")});
        keypad->setText(QStringLiteral("12"));
        QCOMPARE(press(*keypad, {QStringLiteral("5")}, Input::Buttons), QStringList{QStringLiteral("125")});
        // Showing again does.
        window.hide();
        window.show();
        QCOMPARE(press(*keypad, {QStringLiteral("9")}, Input::Buttons), QStringList{QStringLiteral("9")});
    }

    void dynamicWidgetTakesTextAndRange()
    {
        Keypad keypad;
        ko::qtToolkit::common::DoubleValidator validator(-50.0, 50.0, 2);
        TextEntry entry;
        entry.setValidator(&validator);
        entry.setText(QStringLiteral("-12.5"));
        QSignalSpy updated(&keypad, &Keypad::valueUpdated);
        QSignalSpy entryChanged(&entry, &TextEntry::textChanged);

        keypad.setDynamicWidget(&entry);
        QCOMPARE(keypad.dynamicWidget(), &entry);
        QCOMPARE(keypad.text(), QStringLiteral("-12.50"));
        GenericDataFader *slider = fader(keypad);
        QVERIFY(!slider->isHidden());
        QCOMPARE(slider->getMinimumData(), -50.0f);
        QCOMPARE(slider->getMaximumData(), 50.0f);
        // The validator's decimals are not taken over.
        QCOMPARE(slider->getNumberOfDecimals(), 1u);
        QCOMPARE(slider->getData(), -12.5f);
        QCOMPARE(updated.count(), 0);
        QCOMPARE(entryChanged.count(), 0);
    }

    void dynamicWidgetOutsideThePreviousRange()
    {
        // The previous entry's range does not clamp the new entry's value, and nothing is
        // written into the new entry while it is attached.
        Keypad keypad;
        ko::qtToolkit::common::DoubleValidator high(200.0, 300.0, 1);
        ko::qtToolkit::common::DoubleValidator low(0.0, 100.0, 1);
        TextEntry first;
        first.setValidator(&high);
        first.setText(QStringLiteral("250"));
        TextEntry second;
        second.setValidator(&low);
        second.setText(QStringLiteral("50"));

        keypad.setDynamicWidget(&first);
        QCOMPARE(fader(keypad)->getData(), 250.0f);
        QSignalSpy updated(&keypad, &Keypad::valueUpdated);
        QSignalSpy secondChanged(&second, &TextEntry::textChanged);
        keypad.setDynamicWidget(&second);
        QCOMPARE(fader(keypad)->getData(), 50.0f);
        QCOMPARE(keypad.text(), QStringLiteral("50.0"));
        QCOMPARE(updated.count(), 0);
        QCOMPARE(secondChanged.count(), 0);
    }

    void dynamicWidgetWithoutDoubleValidatorKeepsTheRange_data()
    {
        QTest::addColumn<bool>("integerValidator");
        QTest::newRow("integer validator") << true;
        QTest::newRow("no validator") << false;
    }

    void dynamicWidgetWithoutDoubleValidatorKeepsTheRange()
    {
        QFETCH(bool, integerValidator);
        Keypad keypad;
        keypad.setMinimumData(-5.0f);
        keypad.setMaximumData(5.0f);
        ko::qtToolkit::common::IntValidator validator(0, 1000);
        TextEntry entry;
        entry.setValidator(integerValidator ? &validator : nullptr);
        entry.setText(QStringLiteral("3"));
        keypad.setDynamicWidget(&entry);
        QCOMPARE(fader(keypad)->getMinimumData(), -5.0f);
        QCOMPARE(fader(keypad)->getMaximumData(), 5.0f);
        QCOMPARE(fader(keypad)->getData(), 3.0f);
    }

    void nullDynamicWidgetChangesNothingElse()
    {
        Keypad keypad;
        TextEntry entry(QStringLiteral("12"));
        keypad.setDynamicWidget(&entry);
        keypad.setDynamicWidget(nullptr);
        QCOMPARE(keypad.dynamicWidget(), nullptr);
        QVERIFY(!fader(keypad)->isHidden());
        QCOMPARE(keypad.text(), QStringLiteral("12.00"));

        Keypad fresh;
        fresh.setDynamicWidget(nullptr);
        QVERIFY(fader(fresh)->isHidden());
        QCOMPARE(fresh.text(), QStringLiteral("0"));
    }

    void deletedDynamicWidgetIsForgotten()
    {
        Keypad keypad;
        auto entry = std::make_unique<TextEntry>(QStringLiteral("12"));
        keypad.setDynamicWidget(entry.get());
        entry.reset();
        QCOMPARE(keypad.dynamicWidget(), nullptr);
    }

    void onlyEnterGoesThroughTheFader()
    {
        // With an entry attached, keys edit the display only; Enter sends the typed value
        // through the fader, and valueUpdated() carries its clamped, formatted text.
        QWidget window;
        auto *keypad = new Keypad(&window);
        window.show();
        ko::qtToolkit::common::DoubleValidator validator(0.0, 100.0, 1);
        TextEntry entry;
        entry.setValidator(&validator);
        entry.setText(QStringLiteral("12.5"));
        keypad->setDynamicWidget(&entry);

        QStringList updates;
        connect(keypad, &Keypad::valueUpdated, this, [&] { updates << keypad->text(); });
        const QStringList typed = press(*keypad, QString::fromLatin1("2 5 0 DEL . 5").split(QLatin1Char(' ')),
                                        Input::Buttons);
        QCOMPARE(typed, QString::fromLatin1("2 25 250 25 25. 25.5").split(QLatin1Char(' ')));
        QCOMPARE(updates, QStringList());
        QCOMPARE(fader(*keypad)->getData(), 12.5f);

        press(*keypad, QStringList{QStringLiteral("OK")}, Input::Buttons);
        QCOMPARE(updates, QStringList{QStringLiteral("25.5")});
        QCOMPARE(fader(*keypad)->getData(), 25.5f);
        QCOMPARE(keypad->text(), QStringLiteral("25.5"));
    }

    void showGivesFocus()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_VERIFY(keypad->hasFocus());
    }

    void keyEventsGoOnToTheParent()
    {
        Parent window;
        auto *keypad = new Keypad(&window);
        QTest::keyClick(keypad, Qt::Key_5);
        QTest::keyClick(keypad, Qt::Key_A);
        QCOMPARE(window.keys, QList<int>({Qt::Key_5, Qt::Key_A}));
        QCOMPARE(keypad->text(), QStringLiteral("5"));
    }

    void replaceOnFirstKeyIsOffByDefault()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        QCOMPARE(keypad->replaceOnFirstKey(), false);
        window.show();
        press(*keypad, {QStringLiteral("1")}, Input::Buttons);
        keypad->setText(QStringLiteral("250.0"));
        QVERIFY(!display(*keypad)->hasSelectedText());
        QCOMPARE(press(*keypad, {QStringLiteral("3")}, Input::Buttons), QStringList{QStringLiteral("250.03")});
    }

    void replaceOnFirstKey_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("texts");

        const auto keys = [](const char *spaced) { return QString::fromLatin1(spaced).split(QLatin1Char(' ')); };

        QTest::newRow("digit replaces the text") << QStringLiteral("250.0") << keys("3 5") << keys("3 35");
        QTest::newRow("point replaces the text") << QStringLiteral("250.0") << keys(". 5") << keys(". .5");
        QTest::newRow("minus replaces the text") << QStringLiteral("250.0") << keys("- 5") << keys("- -5");
        QTest::newRow("zero replaces the text") << QStringLiteral("250.0") << keys("0 5") << keys("0 5");
        QTest::newRow("backspace edits the text") << QStringLiteral("250.0") << keys("DEL 5") << keys("250. 250.5");
        QTest::newRow("K multiplies the text") << QStringLiteral("12") << keys("K 5") << keys("12000 120005");
        QTest::newRow("escape keeps waiting") << QStringLiteral("250.0") << keys("Escape 3") << keys("250.0 3");
        QTest::newRow("OK waits again") << QStringLiteral("12") << keys("OK 7 7") << keys("12 7 77");
        QTest::newRow("OK after typing waits again") << QStringLiteral("12") << keys("4 OK 5 6") << keys("4 4 5 56");
        QTest::newRow("empty text") << QString() << keys("5 5") << keys("5 55");
    }

    void replaceOnFirstKey()
    {
        QFETCH(QString, start);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, texts);

        for (const Input input : {Input::Buttons, Input::Keyboard}) {
            QWidget window;
            auto *keypad = new Keypad(&window);
            keypad->setReplaceOnFirstKey(true);
            window.show();
            // The keypad was shown first: only the text it receives makes it wait.
            QCOMPARE(press(*keypad, {QStringLiteral("1")}, input), QStringList{QStringLiteral("1")});
            keypad->setText(start);
            QCOMPARE(press(*keypad, keys, input), texts);
        }
    }

    void replaceOnFirstKeySelectsTheWaitingText()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        keypad->setReplaceOnFirstKey(true);
        QCOMPARE(keypad->replaceOnFirstKey(), true);
        window.show();
        QLineEdit *line = display(*keypad);

        keypad->setText(QStringLiteral("250.0"));
        QCOMPARE(line->selectedText(), QStringLiteral("250.0"));
        press(*keypad, {QStringLiteral("Escape")}, Input::Keyboard);
        QCOMPARE(line->selectedText(), QStringLiteral("250.0"));
        press(*keypad, {QStringLiteral("3")}, Input::Buttons);
        QVERIFY(!line->hasSelectedText());
        press(*keypad, {QStringLiteral("OK")}, Input::Buttons);
        QCOMPARE(line->selectedText(), QStringLiteral("3"));
        press(*keypad, {QStringLiteral("DEL")}, Input::Buttons);
        QVERIFY(!line->hasSelectedText());

        // Turning it off ends the wait and the selection; the usual rules apply.
        keypad->setText(QStringLiteral("12"));
        QVERIFY(line->hasSelectedText());
        keypad->setReplaceOnFirstKey(false);
        QCOMPARE(keypad->replaceOnFirstKey(), false);
        QVERIFY(!line->hasSelectedText());
        QCOMPARE(press(*keypad, {QStringLiteral("5")}, Input::Buttons), QStringList{QStringLiteral("125")});
    }

    void replaceOnFirstKeyAfterShow()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        keypad->setText(QStringLiteral("12"));
        keypad->setReplaceOnFirstKey(true);
        // The keypad starts a new number after construction anyway: the text is selected at once.
        QCOMPARE(display(*keypad)->selectedText(), QStringLiteral("12"));
        window.show();
        QCOMPARE(display(*keypad)->selectedText(), QStringLiteral("12"));
        QCOMPARE(press(*keypad, QStringList{QStringLiteral("K"), QStringLiteral("5")}, Input::Buttons),
                 QStringList({QStringLiteral("12000"), QStringLiteral("120005")}));
        window.hide();
        window.show();
        QCOMPARE(display(*keypad)->selectedText(), QStringLiteral("120005"));
        QCOMPARE(press(*keypad, {QStringLiteral("7")}, Input::Buttons), QStringList{QStringLiteral("7")});
    }

    void replaceOnFirstKeyWithADynamicWidget()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        keypad->setReplaceOnFirstKey(true);
        window.show();
        press(*keypad, {QStringLiteral("1")}, Input::Buttons);

        ko::qtToolkit::common::DoubleValidator validator(0.0, 50.0, 1);
        TextEntry entry;
        entry.setValidator(&validator);
        entry.setText(QStringLiteral("25.5"));
        QSignalSpy updated(keypad, &Keypad::valueUpdated);
        QSignalSpy accepted(keypad, &Keypad::accepted);
        keypad->setDynamicWidget(&entry);
        QCOMPARE(display(*keypad)->selectedText(), QStringLiteral("25.5"));
        QCOMPARE(fader(*keypad)->getData(), 25.5f);

        // A finger on the fader rewrites the waiting text, which stays selected.
        fader(*keypad)->setData(30.0f);
        QCOMPARE(updated.count(), 1);
        QCOMPARE(display(*keypad)->selectedText(), QStringLiteral("30.0"));

        QCOMPARE(press(*keypad, QStringList{QStringLiteral("4"), QStringLiteral("OK")}, Input::Buttons),
                 QStringList({QStringLiteral("4"), QStringLiteral("4")}));
        QCOMPARE(updated.count(), 2);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(fader(*keypad)->getData(), 4.0f);
        QCOMPARE(display(*keypad)->selectedText(), QStringLiteral("4"));
    }

    void replaceOnFirstKeySignals()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        keypad->setReplaceOnFirstKey(true);
        window.show();
        keypad->setText(QStringLiteral("250.0"));
        QSignalSpy updated(keypad, &Keypad::valueUpdated);
        QSignalSpy accepted(keypad, &Keypad::accepted);
        QSignalSpy rejected(keypad, &Keypad::rejected);
        press(*keypad, QStringList{QStringLiteral("Escape"), QStringLiteral("3"), QStringLiteral("OK")}, Input::Keyboard);
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(updated.count(), 1);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(keypad->text(), QStringLiteral("3"));
        QCOMPARE(fader(*keypad)->getData(), 3.0f);
    }

    void replaceOnFirstKeyPaintsTheSelection()
    {
        QWidget window;
        auto *keypad = new Keypad(&window);
        window.resize(300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QLineEdit *line = display(*keypad);
        keypad->setText(QStringLiteral("250.0"));
        const QImage plain = line->grab().toImage();

        const auto hasHighlight = [line](const QImage &image) {
            const QRgb active = line->palette().color(QPalette::Active, QPalette::Highlight).rgb();
            const QRgb inactive = line->palette().color(QPalette::Inactive, QPalette::Highlight).rgb();
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb pixel = image.pixel(x, y) | 0xff000000u;
                    if (pixel == active || pixel == inactive)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(!hasHighlight(plain));

        keypad->setReplaceOnFirstKey(true);
        keypad->setText(QStringLiteral("250.0"));
        const QImage waiting = line->grab().toImage();
        QVERIFY(hasHighlight(waiting));
        QVERIFY(waiting != plain);

        // Off again, the display paints as it did.
        keypad->setReplaceOnFirstKey(false);
        QCOMPARE(line->grab().toImage(), plain);
    }

    void keysHaveAccessibleNames_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("name");
        for (char digit = '0'; digit <= '9'; ++digit) {
            const QString d(QLatin1Char{digit});
            QTest::newRow(qPrintable(d)) << d << d;
        }
        QTest::newRow("DEL") << QStringLiteral("DEL") << QStringLiteral("Backspace");
        QTest::newRow("OK") << QStringLiteral("OK") << QStringLiteral("Enter");
        QTest::newRow("K") << QStringLiteral("K") << QStringLiteral("Thousands");
        QTest::newRow(".") << QStringLiteral(".") << QStringLiteral("Decimal point");
        QTest::newRow("-") << QStringLiteral("-") << QStringLiteral("Minus");
    }

    void keysHaveAccessibleNames()
    {
        QFETCH(QString, label);
        QFETCH(QString, name);
        Keypad keypad;
        QPushButton *button = keypadButton(keypad, label);
        QVERIFY(button);
        QCOMPARE(button->accessibleName(), name);
        QCOMPARE(button->text(), label);
    }
};

QTEST_MAIN(tst_Keypad)
#include "tst_Keypad.moc"
