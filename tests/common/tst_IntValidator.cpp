// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/IntValidator.h>

#include <QTest>

#include <limits>

using ko::qtToolkit::common::IntValidator;

class tst_IntValidator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructors()
    {
        QObject owner;
        auto *withRange = new IntValidator(-5, 99, &owner);
        QCOMPARE(withRange->bottom(), -5);
        QCOMPARE(withRange->top(), 99);
        QCOMPARE(withRange->parent(), &owner);

        const IntValidator plain;
        QCOMPARE(plain.bottom(), std::numeric_limits<int>::min());
        QCOMPARE(plain.top(), std::numeric_limits<int>::max());
        QCOMPARE(plain.parent(), nullptr);
    }

    void metaObject()
    {
        const QMetaObject &meta = IntValidator::staticMetaObject;
        QCOMPARE(meta.className(), "ko::qtToolkit::common::IntValidator");
        QCOMPARE(meta.superClass(), &QIntValidator::staticMetaObject);
        // No signals, slots or properties of its own.
        QCOMPARE(meta.methodCount(), QIntValidator::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QIntValidator::staticMetaObject.propertyCount());
    }

    void validateIsQIntValidators_data()
    {
        QTest::addColumn<QString>("input");
        QTest::newRow("empty") << QString();
        QTest::newRow("in range") << QStringLiteral("42");
        QTest::newRow("above top, more digits") << QStringLiteral("250");
        QTest::newRow("letters") << QStringLiteral("abc");
        QTest::newRow("minus") << QStringLiteral("-");
    }

    void validateIsQIntValidators()
    {
        QFETCH(QString, input);
        const IntValidator ours(0, 99);
        const QIntValidator qt(0, 99);
        QString a = input;
        QString b = input;
        int posA = 0;
        int posB = 0;
        QCOMPARE(ours.validate(a, posA), qt.validate(b, posB));
    }

    void fixup_data()
    {
        QTest::addColumn<int>("bottom");
        QTest::addColumn<int>("top");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");

        QTest::newRow("in range stays") << 0 << 99 << QStringLiteral("42") << QStringLiteral("42");
        QTest::newRow("above top clamps to top") << 0 << 99 << QStringLiteral("250") << QStringLiteral("99");
        QTest::newRow("unparsable becomes zero") << 0 << 99 << QStringLiteral("abc") << QStringLiteral("0");
        QTest::newRow("empty becomes zero") << 0 << 99 << QString() << QStringLiteral("0");
        QTest::newRow("below bottom clamps to bottom") << 0 << 99 << QStringLiteral("-7") << QStringLiteral("0");
        QTest::newRow("unparsable clamps to bottom") << 5 << 10 << QStringLiteral("x") << QStringLiteral("5");
        QTest::newRow("unparsable clamps to top") << -10 << -5 << QStringLiteral("x") << QStringLiteral("-5");
        QTest::newRow("beyond 32 bits clamps to top") << 0 << 99 << QStringLiteral("99999999999") << QStringLiteral("99");
        QTest::newRow("beyond 32 bits clamps to bottom")
            << -100 << 100 << QStringLiteral("-99999999999") << QStringLiteral("-100");
        QTest::newRow("beyond 64 bits is unparsable")
            << -100 << 100 << QStringLiteral("99999999999999999999") << QStringLiteral("0");
        QTest::newRow("decimal text is unparsable") << -100 << 100 << QStringLiteral("12.5") << QStringLiteral("0");
        QTest::newRow("hexadecimal is unparsable") << -100 << 100 << QStringLiteral("0x10") << QStringLiteral("0");
        QTest::newRow("bottom above top: bottom wins") << 10 << 5 << QStringLiteral("7") << QStringLiteral("10");
        QTest::newRow("full int range")
            << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << QStringLiteral("-2147483649")
            << QStringLiteral("-2147483648");
    }

    void fixup()
    {
        QFETCH(int, bottom);
        QFETCH(int, top);
        QFETCH(QString, input);
        QFETCH(QString, expected);

        const IntValidator validator(bottom, top);
        validator.fixup(input);
        QCOMPARE(input, expected);
    }

    void fixupThroughTheBasePointer()
    {
        const IntValidator validator(0, 99);
        const QValidator &base = validator;
        QString input = QStringLiteral("250");
        base.fixup(input);
        QCOMPARE(input, QStringLiteral("99"));
    }
};

QTEST_APPLESS_MAIN(tst_IntValidator)
#include "tst_IntValidator.moc"
