// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/DoubleValidator.h>

#include <QTest>

#include <limits>

using ko::qtToolkit::common::DoubleValidator;

Q_DECLARE_METATYPE(QValidator::State)

class tst_DoubleValidator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructors()
    {
        QObject owner;
        auto *withRange = new DoubleValidator(-1.5, 2.5, 3, &owner);
        QCOMPARE(withRange->bottom(), -1.5);
        QCOMPARE(withRange->top(), 2.5);
        QCOMPARE(withRange->decimals(), 3);
        QCOMPARE(withRange->parent(), &owner);

        const DoubleValidator plain;
        const QDoubleValidator qt;
        QCOMPARE(plain.bottom(), qt.bottom());
        QCOMPARE(plain.top(), qt.top());
        QCOMPARE(plain.decimals(), qt.decimals());
        QCOMPARE(plain.parent(), nullptr);
    }

    void metaObject()
    {
        const QMetaObject &meta = DoubleValidator::staticMetaObject;
        QCOMPARE(meta.className(), "ko::qtToolkit::common::DoubleValidator");
        QCOMPARE(meta.superClass(), &QDoubleValidator::staticMetaObject);
        QCOMPARE(meta.methodCount(), QDoubleValidator::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QDoubleValidator::staticMetaObject.propertyCount());
    }

    void validate_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("bottom");
        QTest::addColumn<double>("top");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QValidator::State>("expected");

        const QLocale c = QLocale::c();
        const QLocale german(QLocale::German, QLocale::Germany);
        const double nan = std::numeric_limits<double>::quiet_NaN();

        QTest::newRow("empty") << c << -1000.0 << 1000.0 << 2 << QString() << QValidator::Intermediate;
        QTest::newRow("lone minus, negative bottom")
            << c << -1000.0 << 1000.0 << 2 << QStringLiteral("-") << QValidator::Intermediate;
        QTest::newRow("three decimals") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1.234") << QValidator::Invalid;
        QTest::newRow("above top") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1000.5") << QValidator::Invalid;
        QTest::newRow("in range") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("12.5") << QValidator::Acceptable;
        QTest::newRow("two decimals") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("12.25") << QValidator::Acceptable;
        QTest::newRow("bottom itself") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("-1000") << QValidator::Acceptable;
        QTest::newRow("top itself") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1000.00") << QValidator::Acceptable;
        QTest::newRow("below bottom") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("-1000.01") << QValidator::Invalid;
        QTest::newRow("trailing point") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("12.") << QValidator::Acceptable;
        QTest::newRow("letters") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("abc") << QValidator::Invalid;
        QTest::newRow("letter after the point counts as a decimal")
            << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1.abc") << QValidator::Invalid;
        QTest::newRow("letter after the point within decimals")
            << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1.a") << QValidator::Invalid;
        QTest::newRow("two points, decimals counted from the first")
            << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1.2.3") << QValidator::Invalid;
        QTest::newRow("two points within decimals")
            << c << -1000.0 << 1000.0 << 5 << QStringLiteral("1.2.3") << QValidator::Invalid;
        QTest::newRow("lone minus, bottom zero") << c << 0.0 << 10.0 << 1 << QStringLiteral("-") << QValidator::Invalid;
        QTest::newRow("lone minus, NaN bottom") << c << nan << 10.0 << 1 << QStringLiteral("-") << QValidator::Intermediate;
        QTest::newRow("above top, one decimal") << c << 0.0 << 10.0 << 1 << QStringLiteral("11") << QValidator::Invalid;
        QTest::newRow("below bottom is never intermediate")
            << c << 10.0 << 20.0 << 1 << QStringLiteral("5") << QValidator::Invalid;
        QTest::newRow("no decimals allowed") << c << 0.0 << 10.0 << 0 << QStringLiteral("1.5") << QValidator::Invalid;
        QTest::newRow("minus and digits, negative bottom")
            << c << -10.0 << 10.0 << 1 << QStringLiteral("-5") << QValidator::Acceptable;

        QTest::newRow("comma locale: one decimal")
            << german << -1000.0 << 1000.0 << 2 << QStringLiteral("1,5") << QValidator::Acceptable;
        QTest::newRow("comma locale: three decimals")
            << german << -1000.0 << 1000.0 << 2 << QStringLiteral("1,234") << QValidator::Invalid;
        QTest::newRow("comma locale: full stop is no decimal point")
            << german << -1000.0 << 1000.0 << 2 << QStringLiteral("1.5") << QValidator::Invalid;
        QTest::newRow("comma locale: negative")
            << german << -1000.0 << 1000.0 << 2 << QStringLiteral("-12,25") << QValidator::Acceptable;
        QTest::newRow("comma locale: out of range")
            << german << 0.0 << 10.0 << 1 << QStringLiteral("10,5") << QValidator::Invalid;
        QTest::newRow("comma locale: lone minus")
            << german << -1.0 << 1.0 << 1 << QStringLiteral("-") << QValidator::Intermediate;
        QTest::newRow("comma locale: trailing comma")
            << german << 0.0 << 10.0 << 1 << QStringLiteral("7,") << QValidator::Acceptable;
    }

    void validate()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, bottom);
        QFETCH(double, top);
        QFETCH(int, decimals);
        QFETCH(QString, input);
        QFETCH(QValidator::State, expected);

        DoubleValidator validator(bottom, top, decimals);
        validator.setLocale(locale);
        const QString original = input;
        int pos = 42;
        QCOMPARE(validator.validate(input, pos), expected);
        QCOMPARE(pos, 42);
        QCOMPARE(input, original);
    }

    void fixup_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("bottom");
        QTest::addColumn<double>("top");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");

        const QLocale c = QLocale::c();
        const QLocale german(QLocale::German, QLocale::Germany);

        QTest::newRow("huge clamps to top") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("1e9") << QStringLiteral("1000.00");
        QTest::newRow("huge negative clamps to bottom")
            << c << -1000.0 << 1000.0 << 2 << QStringLiteral("-1e9") << QStringLiteral("-1000.00");
        QTest::newRow("unparsable clamps to bottom") << c << 5.0 << 10.0 << 2 << QStringLiteral("abc") << QStringLiteral("5.00");
        QTest::newRow("unparsable becomes zero") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("abc") << QStringLiteral("0.00");
        QTest::newRow("empty becomes zero") << c << -1000.0 << 1000.0 << 2 << QString() << QStringLiteral("0.00");
        QTest::newRow("unparsable clamps to top") << c << -10.0 << -5.0 << 1 << QStringLiteral("x") << QStringLiteral("-5.0");
        QTest::newRow("integer gets decimals") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("5") << QStringLiteral("5.00");
        QTest::newRow("rounded to decimals") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("12.3456") << QStringLiteral("12.35");
        QTest::newRow("no decimals") << c << -1000.0 << 1000.0 << 0 << QStringLiteral("3.7") << QStringLiteral("4");
        QTest::newRow("below bottom") << c << 0.0 << 10.0 << 1 << QStringLiteral("-5") << QStringLiteral("0.0");
        QTest::newRow("surrounding spaces") << c << 0.0 << 100.0 << 2 << QStringLiteral(" 12.5 ") << QStringLiteral("12.50");
        QTest::newRow("bottom above top: bottom wins") << c << 10.0 << 5.0 << 2 << QStringLiteral("7") << QStringLiteral("10.00");
        QTest::newRow("comma is not a decimal point") << c << 0.0 << 10.0 << 2 << QStringLiteral("1,5") << QStringLiteral("0.00");
        QTest::newRow("not a number counts as zero") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("nan") << QStringLiteral("0.00");
        QTest::newRow("not a number clamped to bottom") << c << 5.0 << 10.0 << 1 << QStringLiteral("NaN") << QStringLiteral("5.0");
        QTest::newRow("infinity counts as zero") << c << -1000.0 << 1000.0 << 2 << QStringLiteral("inf") << QStringLiteral("0.00");
        QTest::newRow("minus infinity counts as zero") << c << 1.0 << 9.0 << 0 << QStringLiteral("-inf") << QStringLiteral("1");
        QTest::newRow("bottom between decimals rounds up into the range")
            << c << 0.004 << 1.0 << 2 << QStringLiteral("0") << QStringLiteral("0.01");
        QTest::newRow("top between decimals rounds down into the range")
            << c << -1.0 << 2.996 << 2 << QStringLiteral("5") << QStringLiteral("2.99");
        QTest::newRow("negative bottom between decimals") << c << -2.996 << 0.0 << 2 << QStringLiteral("-7")
                                                          << QStringLiteral("-2.99");
        QTest::newRow("no value with those decimals in the range")
            << c << 0.004 << 0.006 << 2 << QStringLiteral("1") << QStringLiteral("0.01");
        QTest::newRow("decimals beyond a double's digits") << c << 0.0 << 1.0 << 2147483647 << QStringLiteral("0.5")
                                                           << QStringLiteral("0.50000000000000000");

        QTest::newRow("comma locale: comma unparsable, becomes zero")
            << german << 0.0 << 10.0 << 2 << QStringLiteral("1,5") << QStringLiteral("0.00");
        QTest::newRow("comma locale: comma unparsable, clamped to bottom")
            << german << 5.0 << 10.0 << 2 << QStringLiteral("1,5") << QStringLiteral("5.00");
        QTest::newRow("comma locale: full stop still read and written")
            << german << 0.0 << 10.0 << 2 << QStringLiteral("2.5") << QStringLiteral("2.50");
    }

    void fixup()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, bottom);
        QFETCH(double, top);
        QFETCH(int, decimals);
        QFETCH(QString, input);
        QFETCH(QString, expected);

        DoubleValidator validator(bottom, top, decimals);
        validator.setLocale(locale);
        validator.fixup(input);
        QCOMPARE(input, expected);
    }

    // Whatever the text, what fixup() writes is what validate() accepts, whenever the range
    // holds a value with the validator's decimals.
    void fixupResultIsAcceptable_data()
    {
        QTest::addColumn<double>("bottom");
        QTest::addColumn<double>("top");
        QTest::addColumn<int>("decimals");
        QTest::newRow("default entry range") << -1000.0 << 1000.0 << 2;
        QTest::newRow("ends between decimals") << 0.004 << 0.996 << 2;
        QTest::newRow("negative ends between decimals") << -0.996 << -0.004 << 2;
        QTest::newRow("no decimals") << -7.5 << 7.5 << 0;
        QTest::newRow("many decimals") << 1e-9 << 1e-3 << 12;
    }

    void fixupResultIsAcceptable()
    {
        QFETCH(double, bottom);
        QFETCH(double, top);
        QFETCH(int, decimals);
        DoubleValidator validator(bottom, top, decimals);
        validator.setLocale(QLocale::c());
        const QStringList inputs{QStringLiteral("nan"), QStringLiteral("-nan"), QStringLiteral("inf"),
                                 QStringLiteral("-inf"), QStringLiteral("0"), QStringLiteral("-0"),
                                 QStringLiteral("1e308"), QStringLiteral("-1e308"), QStringLiteral("0.0049999"),
                                 QStringLiteral("0.9951"), QStringLiteral("-0.9951"), QStringLiteral("abc"),
                                 QString(), QStringLiteral("7.49"), QStringLiteral("1e-300")};
        for (QString text : inputs) {
            const QString input = text;
            validator.fixup(text);
            int pos = 0;
            QVERIFY2(validator.validate(text, pos) == QValidator::Acceptable,
                     qPrintable(QStringLiteral("%1 became %2").arg(input, text)));
        }
    }

    void commaLocaleValidatesWhatFixupCannotRead()
    {
        DoubleValidator validator(0.0, 10.0, 1);
        validator.setLocale(QLocale(QLocale::German, QLocale::Germany));
        QString text = QStringLiteral("1,5");
        int pos = 0;
        QCOMPARE(validator.validate(text, pos), QValidator::Acceptable);
        validator.fixup(text);
        QCOMPARE(text, QStringLiteral("0.0"));
    }

    void fixupThroughTheBasePointer()
    {
        const DoubleValidator validator(0.0, 100.0, 1);
        const QValidator &base = validator;
        QString input = QStringLiteral("250");
        base.fixup(input);
        QCOMPARE(input, QStringLiteral("100.0"));
        int pos = 0;
        QCOMPARE(base.validate(input, pos), QValidator::Acceptable);
    }
};

QTEST_APPLESS_MAIN(tst_DoubleValidator)
#include "tst_DoubleValidator.moc"
