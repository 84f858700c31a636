// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedButton.h>
#include <ko/qtToolkit/widget/ElidedLabel.h>
#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/LevelMeter.h>

#include <KeypadSupport.h>
#include <TestSupport.h>

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QSignalSpy>
#include <QTest>

using ko::qtToolkit::widget::ElidedButton;
using ko::qtToolkit::widget::ElidedLabel;
using ko::qtToolkit::widget::Fader;
using ko::qtToolkit::widget::GenericDataFader;
using ko::qtToolkit::widget::Keypad;
using ko::qtToolkit::widget::LevelMeter;

namespace {

const QString longText = QStringLiteral("Monitor mix for the drummer");

QString accessibleText(QObject *object, QAccessible::Text t)
{
    QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(object);
    return iface ? iface->text(t) : QStringLiteral("no interface");
}

QAccessibleValueInterface *valueInterface(QObject *object)
{
    QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(object);
    return iface ? iface->valueInterface() : nullptr;
}

// An application's own meter: it keeps the meter's interface.
class ApplicationMeter : public LevelMeter
{
    Q_OBJECT
};

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void levelMeterValue_data()
    {
        QTest::addColumn<float>("level");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("default") << -60.0f << QStringLiteral("-60.0 dB") << -60.0;
        QTest::newRow("minus twelve") << -12.0f << QStringLiteral("-12.0 dB") << -12.0;
        QTest::newRow("one decimal") << -12.34f << QStringLiteral("-12.3 dB") << double(-12.34f);
        QTest::newRow("zero") << 0.0f << QStringLiteral("0.0 dB") << 0.0;
        QTest::newRow("just below zero has no sign") << -0.04f << QStringLiteral("0.0 dB") << double(-0.04f);
        QTest::newRow("above the range is clamped") << 30.0f << QStringLiteral("15.0 dB") << 15.0;
        QTest::newRow("below the range is clamped") << -100.0f << QStringLiteral("-60.0 dB") << -60.0;
    }

    void levelMeterValue()
    {
        QFETCH(float, level);
        QFETCH(QString, text);
        QFETCH(double, value);

        LevelMeter meter;
        meter.setLevel(level);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(&meter);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::ProgressBar);
        QCOMPARE(iface->text(QAccessible::Value), text);
        QAccessibleValueInterface *values = iface->valueInterface();
        QVERIFY(values);
        QCOMPARE(values->currentValue().toDouble(), value);
        QCOMPARE(values->minimumValue().toDouble(), -60.0);
        QCOMPARE(values->maximumValue().toDouble(), 15.0);
        // A meter is read, not set.
        values->setCurrentValue(0.0);
        QCOMPARE(meter.level(), float(value));
    }

    void levelMeterFollowsItsLevel()
    {
        LevelMeter meter;
        meter.setLevelRange(-90.0f, 0.0f);
        QCOMPARE(accessibleText(&meter, QAccessible::Value), QStringLiteral("-60.0 dB"));
        meter.setLevel(-72.5f);
        QCOMPARE(accessibleText(&meter, QAccessible::Value), QStringLiteral("-72.5 dB"));
        QCOMPARE(valueInterface(&meter)->minimumValue().toDouble(), -90.0);
        QCOMPARE(valueInterface(&meter)->maximumValue().toDouble(), 0.0);
    }

    void subclassOfALevelMeter()
    {
        ApplicationMeter meter;
        meter.setLevel(-3.0f);
        QCOMPARE(accessibleText(&meter, QAccessible::Value), QStringLiteral("-3.0 dB"));
    }

    void faderValue()
    {
        Fader fader;
        fader.setRange(-20, 80);
        fader.setValue(37);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(&fader);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Slider);
        QCOMPARE(iface->text(QAccessible::Value), QStringLiteral("37"));
        QAccessibleValueInterface *values = iface->valueInterface();
        QVERIFY(values);
        QCOMPARE(values->currentValue().toInt(), 37);
        QCOMPARE(values->minimumValue().toInt(), -20);
        QCOMPARE(values->maximumValue().toInt(), 80);
        QCOMPARE(values->minimumStepSize().toInt(), fader.singleStep());

        values->setCurrentValue(-5);
        QCOMPARE(fader.value(), -5);
        QCOMPARE(iface->text(QAccessible::Value), QStringLiteral("-5"));
        values->setCurrentValue(500);
        QCOMPARE(fader.value(), 80);
    }

    void genericDataFaderValue_data()
    {
        QTest::addColumn<unsigned int>("decimals");
        QTest::addColumn<float>("minimum");
        QTest::addColumn<float>("maximum");
        QTest::addColumn<float>("data");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("step");

        QTest::newRow("two decimals") << 2u << -1.5f << 1.5f << 0.257f << QStringLiteral("0.25") << 0.25 << 0.01;
        QTest::newRow("one decimal") << 1u << 0.0f << 100.0f << 25.5f << QStringLiteral("25.5") << 25.5 << 0.1;
        QTest::newRow("one decimal, a float that is not exact") << 1u << 0.0f << 1.0f << 0.1f << QStringLiteral("0.1") << 0.1 << 0.1;
        QTest::newRow("no decimals") << 0u << -10.0f << 10.0f << -3.0f << QStringLiteral("-3") << -3.0 << 1.0;
        QTest::newRow("beyond the range") << 1u << 0.0f << 10.0f << 50.0f << QStringLiteral("10.0") << 10.0 << 0.1;
    }

    void genericDataFaderValue()
    {
        QFETCH(unsigned int, decimals);
        QFETCH(float, minimum);
        QFETCH(float, maximum);
        QFETCH(float, data);
        QFETCH(QString, text);
        QFETCH(double, value);
        QFETCH(double, step);

        GenericDataFader fader(Qt::Vertical);
        fader.setNumberOfDecimals(decimals);
        fader.setMinimumData(minimum);
        fader.setMaximumData(maximum);
        fader.setData(data);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(&fader);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Slider);
        QCOMPARE(iface->text(QAccessible::Value), text);
        QAccessibleValueInterface *values = iface->valueInterface();
        QVERIFY(values);
        QCOMPARE(values->currentValue().toDouble(), value);
        QCOMPARE(values->minimumValue().toDouble(), double(minimum));
        QCOMPARE(values->maximumValue().toDouble(), double(maximum));
        QCOMPARE(values->minimumStepSize().toDouble(), step);
    }

    void genericDataFaderIsSetInData()
    {
        GenericDataFader fader(Qt::Vertical);
        fader.setNumberOfDecimals(1);
        fader.setMinimumData(0.0f);
        fader.setMaximumData(100.0f);
        QSignalSpy changed(&fader, &GenericDataFader::dataChanged);
        valueInterface(&fader)->setCurrentValue(42.5);
        QCOMPARE(fader.getData(), 42.5f);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(accessibleText(&fader, QAccessible::Value), QStringLiteral("42.5"));
    }

    void keypadKeys_data()
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

    void keypadKeys()
    {
        QFETCH(QString, label);
        QFETCH(QString, name);
        Keypad keypad;
        QPushButton *button = ko::qtToolkit::test::keypadButton(keypad, label);
        QVERIFY(button);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(button);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Name), name);
    }

    void elidedLabelIsNamedByItsFullText()
    {
        ElidedLabel label(longText);
        label.resize(40, 20);
        label.grab();
        QCOMPARE(label.toolTip(), longText);
        QCOMPARE(accessibleText(&label, QAccessible::Name), longText);
        QCOMPARE(accessibleText(&label, QAccessible::Description), longText);

        label.resize(1000, 20);
        label.grab();
        QCOMPARE(accessibleText(&label, QAccessible::Name), longText);
        QVERIFY(accessibleText(&label, QAccessible::Description).isEmpty());

        // A name the application gave is kept.
        label.setAccessibleName(QStringLiteral("Drummer"));
        label.resize(40, 20);
        label.grab();
        QCOMPARE(accessibleText(&label, QAccessible::Name), QStringLiteral("Drummer"));
    }

    void elidedButtonIsNamedByItsFullText()
    {
        ElidedButton button(longText);
        button.resize(40, 30);
        button.grab();
        QCOMPARE(button.toolTip(), longText);
        QCOMPARE(accessibleText(&button, QAccessible::Name), longText);
        QCOMPARE(accessibleText(&button, QAccessible::Description), longText);
        QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(&button);
        QCOMPARE(iface->role(), QAccessible::Button);

        button.setAccessibleName(QStringLiteral("Drummer"));
        QCOMPARE(accessibleText(&button, QAccessible::Name), QStringLiteral("Drummer"));
    }
};

QTEST_MAIN(tst_Accessibility)
#include "tst_Accessibility.moc"
