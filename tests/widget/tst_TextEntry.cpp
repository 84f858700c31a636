// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <KeypadSupport.h>
#include <TestSupport.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using ko::qtToolkit::common::DoubleValidator;
using ko::qtToolkit::test::KeypadDriver;
using ko::qtToolkit::test::sharedKeypadDialog;
using ko::qtToolkit::widget::TextEntry;
namespace dialog = ko::qtToolkit::dialog;

namespace {

// One decimal, counting how often it repairs a text.
class CountingValidator : public DoubleValidator
{
public:
    CountingValidator()
        : DoubleValidator(-100.0, 100.0, 1)
    {
    }
    void fixup(QString &input) const override
    {
        ++fixups;
        DoubleValidator::fixup(input);
    }
    mutable int fixups = 0;
};

} // namespace
namespace singleton = ko::qtToolkit::singleton;
namespace widget = ko::qtToolkit::widget;

namespace {

QLineEdit *lineEdit(const TextEntry &entry)
{
    return entry.findChild<QLineEdit *>();
}

QStringList emitted(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &arguments : spy)
        texts << arguments.at(0).toString();
    return texts;
}

// A window holding the entry under test and a second field to move the focus to.
class Window : public QWidget
{
public:
    Window()
        : entry(new TextEntry(this))
        , other(new QLineEdit(this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(entry);
        layout->addWidget(other);
        resize(300, 100);
    }

    // Makes the entry a field from 0 to 100 with 1 decimal, holding 12.5, that opens the keypad.
    void openKeypad(bool dynamic, const QString &suffix)
    {
        singleton::TextEntry::instance()->setUseKeypad(true);
        entry->setValidator(percent);
        entry->setDynamicTextEntry(dynamic);
        entry->setSuffix(suffix);
        entry->setText(QStringLiteral("12.5"));
    }

    bool activate()
    {
        show();
        QApplication::setActiveWindow(this);
        return QTest::qWaitForWindowActive(this);
    }

    TextEntry *const entry;
    QLineEdit *const other;
    // A child made after the entry, so that it is deleted after it.
    DoubleValidator *const percent = new DoubleValidator(0.0, 100.0, 1, this);
};

// Records the key presses that reach the object it filters.
class KeyRecorder : public QObject
{
public:
    QList<int> keys;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            keys << static_cast<QKeyEvent *>(event)->key();
        return false;
    }
};

// What the entry and the keypad showed during a keypad session.
struct Session
{
    QString keypadText;
    bool faderShown = false;
    QStringList displays;
    QStringList entryTexts;
    QStringList entryShows;
};

// A script that presses the keys \a labels, then the button \a finish, and records.
KeypadDriver::Script typeOnKeypad(Session &session, const TextEntry &entry, const QStringList &labels,
                                  const QString &finish)
{
    return [&session, &entry, labels, finish](dialog::Keypad &dialog) {
        session.keypadText = dialog.text();
        session.faderShown = dialog.findChild<widget::GenericDataFader *>()->isVisible();
        for (const QString &label : labels) {
            if (!ko::qtToolkit::test::clickKeypad(dialog, label))
                return;
            session.displays << dialog.text();
            session.entryTexts << entry.text();
            session.entryShows << lineEdit(entry)->text();
        }
        ko::qtToolkit::test::clickKeypad(dialog, finish);
    };
}

QStringList split(const char *spaced)
{
    return QString::fromLatin1(spaced).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class tst_TextEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    // The switch and the keypad live for the whole process.
    void init()
    {
        singleton::TextEntry::instance()->setUseKeypad(false);
        singleton::Keypad::instance()->setText(QStringLiteral("0"));
        singleton::Keypad::instance()->setConstrainedRect(QRect(0, 0, 1024, 768));
    }

    void defaults()
    {
        QWidget parent;
        auto *entry = new TextEntry(&parent);
        QCOMPARE(entry->parentWidget(), &parent);
        QCOMPARE(entry->text(), QStringLiteral("0.00"));
        QCOMPARE(entry->suffix(), QString());
        QCOMPARE(entry->placeholderText(), QString());
        QCOMPARE(entry->isNumeric(), true);
        QCOMPARE(entry->isDynamicTextEntry(), false);
        QCOMPARE(entry->metaObject()->className(), "ko::qtToolkit::widget::TextEntry");

        QLineEdit *line = lineEdit(*entry);
        QVERIFY(line);
        QCOMPARE(line->parentWidget(), entry);
        QCOMPARE(line->text(), QStringLiteral("0.00"));
        QCOMPARE(line->focusPolicy(), Qt::ClickFocus);
        QVERIFY(!line->testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(line->validator(), nullptr);

        auto *layout = qobject_cast<QHBoxLayout *>(entry->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->indexOf(line), 0);
    }

    void defaultValidatorIsShared()
    {
        const TextEntry first;
        const TextEntry second;
        QVERIFY(first.validator());
        QCOMPARE(first.validator(), second.validator());
        const auto *validator = qobject_cast<const DoubleValidator *>(first.validator());
        QVERIFY(validator);
        QCOMPARE(validator->bottom(), -1000.0);
        QCOMPARE(validator->top(), 1000.0);
        QCOMPARE(validator->decimals(), 2);
        QCOMPARE(validator->parent(), nullptr);
    }

    void properties()
    {
        TextEntry entry;
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        QVERIFY(entry.setProperty("text", QStringLiteral("3")));
        QCOMPARE(entry.property("text").toString(), QStringLiteral("3.00"));
        QVERIFY(entry.setProperty("suffix", QStringLiteral("ms")));
        QCOMPARE(entry.property("suffix").toString(), QStringLiteral("ms"));
        QCOMPARE(emitted(spy), QStringList({QStringLiteral("3.00"), QStringLiteral("3.00")}));
    }

    void setTextRepairs_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("committed");

        QTest::newRow("integer gets two decimals") << QStringLiteral("5") << QStringLiteral("5.00");
        QTest::newRow("above the default range") << QStringLiteral("2000") << QStringLiteral("1000.00");
        QTest::newRow("below the default range") << QStringLiteral("-5000") << QStringLiteral("-1000.00");
        QTest::newRow("unparsable") << QStringLiteral("abc") << QStringLiteral("0.00");
        QTest::newRow("empty") << QString() << QStringLiteral("0.00");
        QTest::newRow("rounded") << QStringLiteral("1.23456") << QStringLiteral("1.23");
        QTest::newRow("comma is not read") << QStringLiteral("1,5") << QStringLiteral("0.00");
        QTest::newRow("not a number") << QStringLiteral("nan") << QStringLiteral("0.00");
        QTest::newRow("infinity") << QStringLiteral("-inf") << QStringLiteral("0.00");
    }

    void setTextRepairs()
    {
        QFETCH(QString, input);
        QFETCH(QString, committed);

        TextEntry entry;
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        entry.setText(input);
        QCOMPARE(entry.text(), committed);
        QCOMPARE(emitted(spy), QStringList{committed});

        const TextEntry constructed(input);
        QCOMPARE(constructed.text(), committed);
    }

    void numericTextShowsTheSuffix()
    {
        TextEntry entry;
        entry.setSuffix(QStringLiteral("dB"));
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        entry.setText(QStringLiteral("5"));
        QCOMPARE(entry.text(), QStringLiteral("5.00"));
        QCOMPARE(lineEdit(entry)->text(), QStringLiteral("5.00dB"));
        QCOMPARE(emitted(spy), QStringList{QStringLiteral("5.00")});
    }

    void setTextAlwaysEmits()
    {
        TextEntry entry(QStringLiteral("5"));
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        entry.setText(QStringLiteral("5"));
        entry.setText(QStringLiteral("5.00"));
        QCOMPARE(emitted(spy), QStringList({QStringLiteral("5.00"), QStringLiteral("5.00")}));
    }

    void setSuffix()
    {
        TextEntry entry(QStringLiteral("12"));
        entry.setSuffix(QStringLiteral("Hz"));
        QSignalSpy spy(&entry, &TextEntry::textChanged);

        entry.setSuffix(QStringLiteral("Hz"));
        QCOMPARE(spy.count(), 0);

        entry.setSuffix(QStringLiteral("kHz"));
        QCOMPARE(emitted(spy), QStringList{QStringLiteral("12.00")});
        QCOMPARE(entry.suffix(), QStringLiteral("kHz"));
        QCOMPARE(lineEdit(entry)->text(), QStringLiteral("12.00kHz"));

        entry.setSuffix(QString());
        QCOMPARE(spy.count(), 2);
        QCOMPARE(lineEdit(entry)->text(), QStringLiteral("12.00"));
    }

    void validatorAndNumeric()
    {
        TextEntry entry(QStringLiteral("5"));
        entry.setSuffix(QStringLiteral("dB"));
        QLineEdit *line = lineEdit(entry);
        const QValidator *defaultValidator = entry.validator();
        DoubleValidator mine(0.0, 10.0, 1);
        DoubleValidator other(0.0, 20.0, 1);

        entry.setNumeric(false);
        QCOMPARE(entry.isNumeric(), false);
        QCOMPARE(line->validator(), defaultValidator);
        // The display waits for the next commit.
        QCOMPARE(line->text(), QStringLiteral("5.00dB"));

        entry.setValidator(&mine);
        QCOMPARE(entry.validator(), &mine);
        QCOMPARE(line->validator(), &mine);

        entry.setNumeric(true);
        QCOMPARE(line->validator(), nullptr);
        entry.setValidator(&other);
        QCOMPARE(entry.validator(), &other);
        QCOMPARE(line->validator(), nullptr);

        entry.setValidator(nullptr);
        entry.setText(QStringLiteral("not a number"));
        QCOMPARE(entry.text(), QStringLiteral("not a number"));
    }

    void dynamicFlagIsStoredOnly()
    {
        TextEntry entry(QStringLiteral("5"));
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        entry.setDynamicTextEntry(true);
        QCOMPARE(entry.isDynamicTextEntry(), true);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(singleton::Keypad::instance()->dynamicWidget(), nullptr);
        entry.setDynamicTextEntry(false);
        QCOMPARE(entry.isDynamicTextEntry(), false);
    }

    void placeholder()
    {
        Window window;
        window.entry->setFixedWidth(60);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QLineEdit *line = lineEdit(*window.entry);

        const QString wide = QStringLiteral("Frequency of the high shelf");
        window.entry->setPlaceholderText(wide);
        QCOMPARE(window.entry->placeholderText(), wide);
        QCOMPARE(line->placeholderText(), QStringLiteral("---"));

        window.entry->setPlaceholderText(QStringLiteral("Hz"));
        QCOMPARE(line->placeholderText(), QStringLiteral("Hz"));

        // A wider field shows the whole placeholder; resizing emits nothing.
        window.entry->setPlaceholderText(wide);
        QSignalSpy spy(window.entry, &TextEntry::textChanged);
        window.entry->setFixedWidth(280);
        QTRY_COMPARE(line->placeholderText(), wide);
        QCOMPARE(spy.count(), 0);
    }

    void longTextIsElidedOnlyWhenNotNumeric()
    {
        Window window;
        window.entry->setFixedWidth(60);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        TextEntry &entry = *window.entry;
        QLineEdit *line = lineEdit(entry);

        DoubleValidator wide(-1e15, 1e15, 2);
        entry.setValidator(&wide);
        entry.setSuffix(QStringLiteral("Hz"));
        entry.setText(QStringLiteral("123456789012"));
        QCOMPARE(line->text(), QStringLiteral("123456789012.00Hz"));

        const QString name = QStringLiteral("Microphone input channel 12");
        entry.setNumeric(false);
        entry.setValidator(nullptr);
        entry.setText(name);
        QCOMPARE(entry.text(), name);
        const QString shown = line->text();
        QVERIFY2(shown.endsWith(QChar(0x2026)), qPrintable(shown));
        QVERIFY(shown.size() < name.size());
        QVERIFY(name.startsWith(shown.chopped(1)));

        // Elision follows the width, silently.
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        entry.setFixedWidth(290);
        QTRY_COMPARE(line->text(), name);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(entry.text(), name);
    }

    void fontGoesToTheLineEdit()
    {
        TextEntry entry;
        QLineEdit *line = lineEdit(entry);
        line->setFont(ko::qtToolkit::test::fixedFont(20));
        entry.setFont(ko::qtToolkit::test::fixedFont(9));
        QCOMPARE(line->font().pixelSize(), 9);
    }

    void typingInPlace_data()
    {
        QTest::addColumn<bool>("numeric");
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<QString>("committed");

        using K = QVector<int>;
        QTest::newRow("digits") << true << K{Qt::Key_1, Qt::Key_2} << QStringLiteral("12.00");
        QTest::newRow("comma and plus do nothing")
            << true << K{Qt::Key_1, Qt::Key_Comma, Qt::Key_5, Qt::Key_Plus} << QStringLiteral("15.00");
        QTest::newRow("letters and space do nothing")
            << true << K{Qt::Key_A, Qt::Key_7, Qt::Key_Space} << QStringLiteral("7.00");
        QTest::newRow("minus and point")
            << true << K{Qt::Key_Minus, Qt::Key_3, Qt::Key_Period, Qt::Key_5} << QStringLiteral("-3.50");
        QTest::newRow("backspace") << true << K{Qt::Key_1, Qt::Key_2, Qt::Key_5, Qt::Key_Backspace}
                                   << QStringLiteral("12.00");
        QTest::newRow("left and delete")
            << true << K{Qt::Key_1, Qt::Key_2, Qt::Key_Left, Qt::Key_Delete} << QStringLiteral("1.00");
        QTest::newRow("left, then a digit") << true << K{Qt::Key_1, Qt::Key_2, Qt::Key_Left, Qt::Key_3}
                                            << QStringLiteral("132.00");
        QTest::newRow("home is swallowed") << true << K{Qt::Key_1, Qt::Key_2, Qt::Key_Home, Qt::Key_3}
                                           << QStringLiteral("123.00");
        QTest::newRow("up is swallowed") << true << K{Qt::Key_1, Qt::Key_Up, Qt::Key_2} << QStringLiteral("12.00");

        QTest::newRow("text: comma and plus are typed")
            << false << K{Qt::Key_1, Qt::Key_Comma, Qt::Key_5, Qt::Key_Plus} << QStringLiteral("1,5+");
        QTest::newRow("text: letters") << false << K{Qt::Key_A, Qt::Key_B} << QStringLiteral("ab");
        QTest::newRow("text: home passes") << false << K{Qt::Key_A, Qt::Key_B, Qt::Key_Home, Qt::Key_C}
                                           << QStringLiteral("cab");
    }

    void typingInPlace()
    {
        QFETCH(bool, numeric);
        QFETCH(QVector<int>, keys);
        QFETCH(QString, committed);

        Window window;
        TextEntry &entry = *window.entry;
        if (!numeric) {
            entry.setNumeric(false);
            entry.setValidator(nullptr);
        }
        entry.setText(QStringLiteral("1.00"));
        QVERIFY(window.activate());
        KeypadDriver keypad(*sharedKeypadDialog());
        QSignalSpy spy(&entry, &TextEntry::textChanged);

        QLineEdit *line = lineEdit(entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QVERIFY(line->hasFocus());
        QTRY_COMPARE(line->selectedText(), QStringLiteral("1.00"));
        for (const int key : keys)
            QTest::keyClick(line, Qt::Key(key));
        QTest::keyClick(line, Qt::Key_Return);

        QCOMPARE(emitted(spy), QStringList{committed});
        QCOMPARE(entry.text(), committed);
        QVERIFY(!line->hasFocus());
        QCOMPARE(keypad.openings, 0);
    }

    void committingKeys_data()
    {
        QTest::addColumn<bool>("numeric");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("committed");

        QTest::newRow("return") << true << int(Qt::Key_Return) << QStringLiteral("42.00");
        QTest::newRow("enter") << true << int(Qt::Key_Enter) << QStringLiteral("42.00");
        QTest::newRow("tab") << true << int(Qt::Key_Tab) << QStringLiteral("42.00");
        QTest::newRow("focus out") << true << 0 << QStringLiteral("42.00");
        QTest::newRow("text: return") << false << int(Qt::Key_Return) << QStringLiteral("42");
        QTest::newRow("text: enter") << false << int(Qt::Key_Enter) << QStringLiteral("42");
        QTest::newRow("text: tab") << false << int(Qt::Key_Tab) << QStringLiteral("42");
        QTest::newRow("text: focus out") << false << 0 << QStringLiteral("42");
    }

    void committingKeys()
    {
        QFETCH(bool, numeric);
        QFETCH(int, key);
        QFETCH(QString, committed);

        Window window;
        TextEntry &entry = *window.entry;
        entry.setNumeric(numeric);
        entry.setValidator(numeric ? entry.validator() : nullptr);
        entry.setSuffix(QStringLiteral("ms"));
        entry.setText(QStringLiteral("1"));
        QVERIFY(window.activate());
        QSignalSpy spy(&entry, &TextEntry::textChanged);

        QLineEdit *line = lineEdit(entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QTRY_VERIFY(line->hasSelectedText());
        QTest::keyClicks(line, QStringLiteral("42"));
        if (key)
            QTest::keyClick(line, Qt::Key(key));
        else
            QTest::mouseClick(window.other, Qt::LeftButton);

        QCOMPARE(emitted(spy), QStringList{committed});
        QVERIFY(!line->hasFocus());
        QCOMPARE(line->text(), numeric ? committed + QStringLiteral("ms") : committed);
    }

    void focusWithoutChange_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("no suffix: nothing") << QString() << QStringList();
        QTest::newRow("suffix: the unchanged value") << QStringLiteral("dB") << QStringList{QStringLiteral("5.00")};
    }

    void focusWithoutChange()
    {
        QFETCH(QString, suffix);
        QFETCH(QStringList, expected);

        Window window;
        window.entry->setSuffix(suffix);
        window.entry->setText(QStringLiteral("5"));
        QVERIFY(window.activate());
        QSignalSpy spy(window.entry, &TextEntry::textChanged);

        QLineEdit *line = lineEdit(*window.entry);
        QTest::mouseClick(line, Qt::LeftButton);
        // Editing shows the raw text, without the suffix, selected.
        QCOMPARE(line->text(), QStringLiteral("5.00"));
        QTRY_COMPARE(line->selectedText(), QStringLiteral("5.00"));
        QTest::mouseClick(window.other, Qt::LeftButton);

        QCOMPARE(emitted(spy), expected);
        QCOMPARE(window.entry->text(), QStringLiteral("5.00"));
        QCOMPARE(line->text(), QStringLiteral("5.00") + suffix);
    }

    void escapeRestoresSilently()
    {
        Window window;
        window.entry->setSuffix(QStringLiteral("dB"));
        window.entry->setText(QStringLiteral("1"));
        QVERIFY(window.activate());
        KeyRecorder parentKeys;
        window.entry->installEventFilter(&parentKeys);
        QSignalSpy spy(window.entry, &TextEntry::textChanged);

        QLineEdit *line = lineEdit(*window.entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QTRY_VERIFY(line->hasSelectedText());
        QTest::keyClicks(line, QStringLiteral("77"));
        QCOMPARE(line->text(), QStringLiteral("77"));
        QTest::keyClick(line, Qt::Key_Escape);

        QCOMPARE(spy.count(), 0);
        QCOMPARE(window.entry->text(), QStringLiteral("1.00"));
        QCOMPARE(line->text(), QStringLiteral("1.00dB"));
        QVERIFY(!line->hasFocus());
        // Consumed: the entry itself never saw it.
        QVERIFY(!parentKeys.keys.contains(Qt::Key_Escape));
    }

    // Redrawing the committed text, for a new width or after Escape, commits nothing again: the
    // validator is not asked, and no signal goes out even to a receiver that blocks nothing.
    void redrawRunsNoCommit()
    {
        Window window;
        CountingValidator validator;
        window.entry->setValidator(&validator);
        window.entry->setText(QStringLiteral("4"));
        QCOMPARE(validator.fixups, 1);
        QVERIFY(window.activate());
        QSignalSpy spy(window.entry, &TextEntry::textChanged);

        window.entry->resize(window.entry->width() + 40, window.entry->height());
        QCoreApplication::processEvents();
        QLineEdit *line = lineEdit(*window.entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QTRY_VERIFY(line->hasSelectedText());
        QTest::keyClicks(line, QStringLiteral("9"));
        QTest::keyClick(line, Qt::Key_Escape);

        QCOMPARE(validator.fixups, 1);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(window.entry->text(), QStringLiteral("4.0"));
        QCOMPARE(line->text(), QStringLiteral("4.0"));
        window.entry->setValidator(nullptr);
    }

    void escapeAfterReturnPassesThrough_data()
    {
        QTest::addColumn<bool>("numeric");
        QTest::newRow("numeric") << true;
        QTest::newRow("text") << false;
    }

    void escapeAfterReturnPassesThrough()
    {
        QFETCH(bool, numeric);
        Window window;
        window.entry->setNumeric(numeric);
        window.entry->setValidator(nullptr);
        window.entry->setText(QStringLiteral("1"));
        QVERIFY(window.activate());
        KeyRecorder parentKeys;
        window.entry->installEventFilter(&parentKeys);
        QSignalSpy spy(window.entry, &TextEntry::textChanged);

        QLineEdit *line = lineEdit(*window.entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QTRY_VERIFY(line->hasSelectedText());
        QTest::keyClicks(line, QStringLiteral("77"));
        QTest::keyClick(line, Qt::Key_Return);
        QTest::keyClick(line, Qt::Key_Escape);

        QCOMPARE(emitted(spy), QStringList{QStringLiteral("77")});
        QCOMPARE(window.entry->text(), QStringLiteral("77"));
        // Not consumed: the line edit ignores Escape and it travels on to the entry.
        QVERIFY(parentKeys.keys.contains(Qt::Key_Escape));
    }

    void releaseActivatesTheWindow()
    {
        Window window;
        QVERIFY(window.activate());
        QApplication::setActiveWindow(nullptr);
        QCOMPARE(QApplication::activeWindow(), nullptr);
        QTest::mouseRelease(lineEdit(*window.entry), Qt::LeftButton);
        QCOMPARE(QApplication::activeWindow(), &window);
    }

    void releaseLeavesAnotherActiveWindowAlone()
    {
        Window window;
        QVERIFY(window.activate());
        QWidget elsewhere;
        elsewhere.show();
        QApplication::setActiveWindow(&elsewhere);
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        QTest::mouseRelease(lineEdit(*window.entry), Qt::LeftButton);
        QCOMPARE(QApplication::activeWindow(), &elsewhere);
    }

    void textEntryNeverOpensTheKeypad()
    {
        singleton::TextEntry::instance()->setUseKeypad(true);
        Window window;
        window.entry->setNumeric(false);
        window.entry->setValidator(nullptr);
        window.entry->setText(QStringLiteral("abc"));
        QVERIFY(window.activate());
        KeypadDriver keypad(*sharedKeypadDialog());

        QLineEdit *line = lineEdit(*window.entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QVERIFY(line->hasFocus());
        QCOMPARE(keypad.openings, 0);
    }

    // From the touch to the committed value, as a user does it: a click on the field opens
    // the modal keypad, the keys are touched, OK commits what the entry's validator makes of
    // the keypad's text.
    void touchToResult_data()
    {
        QTest::addColumn<bool>("dynamic");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QStringList>("entryTexts");
        QTest::addColumn<QStringList>("entryShows");
        QTest::addColumn<QStringList>("emissions");

        // The keys 2, 5, 0 show 2, 25 and 250 on the keypad; OK commits 250, which the
        // validator (0 to 100, 1 decimal) turns into 100.0.
        QTest::newRow("plain") << false << QString() << split("12.5 12.5 12.5") << split("12.5 12.5 12.5")
                               << split("100.0");
        // The field leaves edit mode when the keypad takes the focus: with a suffix, its raw
        // text differs from the display and is committed, unchanged, first.
        QTest::newRow("plain, suffix") << false << QStringLiteral("%") << split("12.5 12.5 12.5")
                                       << split("12.5% 12.5% 12.5%") << split("12.5 100.0");
        // Keys edit the keypad's display only; Enter sends the typed value through the fader,
        // whose clamped value reaches the entry live before the entry commits the keypad's text.
        QTest::newRow("dynamic") << true << QString() << split("12.5 12.5 12.5") << split("12.5 12.5 12.5")
                                 << split("100.0 100.0");
        QTest::newRow("dynamic, suffix") << true << QStringLiteral("%") << split("12.5 12.5 12.5")
                                         << split("12.5% 12.5% 12.5%") << split("12.5 100.0 100.0");
    }

    void touchToResult()
    {
        QFETCH(bool, dynamic);
        QFETCH(QString, suffix);
        QFETCH(QStringList, entryTexts);
        QFETCH(QStringList, entryShows);
        QFETCH(QStringList, emissions);

        Window window;
        window.openKeypad(dynamic, suffix);
        TextEntry &entry = *window.entry;
        QVERIFY(window.activate());

        KeypadDriver keypad(*sharedKeypadDialog());
        Session session;
        keypad.then(typeOnKeypad(session, entry, split("2 5 0"), QStringLiteral("OK")));
        QSignalSpy spy(&entry, &TextEntry::textChanged);

        QTest::mouseClick(lineEdit(entry), Qt::LeftButton);

        QCOMPARE(keypad.openings, 1);
        QCOMPARE(session.keypadText, QStringLiteral("12.5"));
        QCOMPARE(session.faderShown, dynamic);
        QCOMPARE(session.displays, split("2 25 250"));
        QCOMPARE(session.entryTexts, entryTexts);
        QCOMPARE(session.entryShows, entryShows);
        QCOMPARE(emitted(spy), emissions);
        QCOMPARE(entry.text(), QStringLiteral("100.0"));
        QCOMPARE(lineEdit(entry)->text(), QStringLiteral("100.0") + suffix);
        QCOMPARE(singleton::Keypad::instance()->dynamicWidget(), dynamic ? &entry : nullptr);

        // Back in its window the field does not open the keypad again by itself.
        QVERIFY(window.activate());
        QCOMPARE(keypad.openings, 1);
    }

    void closeButtonCancels_data()
    {
        QTest::addColumn<bool>("dynamic");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("emissions");

        QTest::newRow("plain, keys then close") << false << QString() << split("7 7") << QStringLiteral("12.5")
                                                << QStringList();
        QTest::newRow("plain, suffix") << false << QStringLiteral("%") << split("7") << QStringLiteral("12.5")
                                       << split("12.5");
        QTest::newRow("dynamic, close at once") << true << QString() << QStringList() << QStringLiteral("12.5")
                                                << QStringList();
        // Keys alone send nothing to the entry: closing leaves it as it was.
        QTest::newRow("dynamic, keys then close")
            << true << QString() << split("7") << QStringLiteral("12.5") << QStringList();
    }

    void closeButtonCancels()
    {
        QFETCH(bool, dynamic);
        QFETCH(QString, suffix);
        QFETCH(QStringList, keys);
        QFETCH(QString, text);
        QFETCH(QStringList, emissions);

        Window window;
        window.openKeypad(dynamic, suffix);
        TextEntry &entry = *window.entry;
        QVERIFY(window.activate());

        KeypadDriver keypad(*sharedKeypadDialog());
        Session session;
        keypad.then(typeOnKeypad(session, entry, keys, QStringLiteral("close")));
        QSignalSpy spy(&entry, &TextEntry::textChanged);
        QSignalSpy finished(sharedKeypadDialog(), &QDialog::finished);

        QLineEdit *line = lineEdit(entry);
        QTest::mouseClick(line, Qt::LeftButton);

        QCOMPARE(keypad.openings, 1);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Rejected));
        QCOMPARE(session.displays.size(), keys.size());
        QCOMPARE(entry.text(), text);
        QCOMPARE(emitted(spy), emissions);
        QCOMPARE(line->text(), text + suffix);
        QVERIFY(!line->hasFocus());

        // The field does not reopen the keypad when its window is active again.
        QVERIFY(window.activate());
        QCOMPARE(keypad.openings, 1);
        QCOMPARE(spy.count(), emissions.size());
    }

    void keypadOpensAgainOnTheNextTouch()
    {
        Window window;
        window.openKeypad(false, QString());
        QVERIFY(window.activate());

        KeypadDriver keypad(*sharedKeypadDialog());
        Session first;
        Session second;
        keypad.then(typeOnKeypad(first, *window.entry, split("4"), QStringLiteral("close")));
        keypad.then(typeOnKeypad(second, *window.entry, split("4"), QStringLiteral("OK")));
        QLineEdit *line = lineEdit(*window.entry);

        QTest::mouseClick(line, Qt::LeftButton);
        QCOMPARE(window.entry->text(), QStringLiteral("12.5"));
        QVERIFY(window.activate());
        QTest::mouseClick(line, Qt::LeftButton);

        QCOMPARE(keypad.openings, 2);
        QCOMPARE(second.keypadText, QStringLiteral("12.5"));
        QCOMPARE(window.entry->text(), QStringLiteral("4.0"));
    }

    void switchingTheKeypadOff()
    {
        singleton::TextEntry::instance()->setUseKeypad(true);
        singleton::TextEntry::instance()->setUseKeypad(false);
        Window window;
        QVERIFY(window.activate());
        KeypadDriver keypad(*sharedKeypadDialog());
        QLineEdit *line = lineEdit(*window.entry);
        QTest::mouseClick(line, Qt::LeftButton);
        QVERIFY(line->hasFocus());
        QCOMPARE(keypad.openings, 0);
    }
};

QTEST_MAIN(tst_TextEntry)
#include "tst_TextEntry.moc"
