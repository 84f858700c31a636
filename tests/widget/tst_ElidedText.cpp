// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedText.h>

#include <TestSupport.h>

#include <QFontMetrics>
#include <QTest>
#include <QWidget>

using ko::qtToolkit::widget::EllipsisMode;
using ko::qtToolkit::widget::elidedText;

Q_DECLARE_METATYPE(EllipsisMode)

namespace {

const QString longText = QStringLiteral("Master bus compressor threshold");
const QString dashes = QStringLiteral("---");

QString fontElided(const QWidget &widget, const QString &text, int width)
{
    return QFontMetrics(widget.font()).elidedText(text, Qt::ElideRight, width, 0);
}

} // namespace

class tst_ElidedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void modeValues()
    {
        QCOMPARE(static_cast<int>(EllipsisMode::Elide), 0);
        QCOMPARE(static_cast<int>(EllipsisMode::Replace), 1);
    }

    void textThatFits_data()
    {
        QTest::addColumn<EllipsisMode>("mode");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<int>("margin");
        QTest::newRow("elide") << EllipsisMode::Elide << dashes << 0;
        QTest::newRow("replace") << EllipsisMode::Replace << dashes << 0;
        QTest::newRow("replace with empty replacement") << EllipsisMode::Replace << QString() << 0;
        QTest::newRow("other mode value") << static_cast<EllipsisMode>(2) << dashes << 0;
        QTest::newRow("margin that still fits") << EllipsisMode::Replace << dashes << 10;
    }

    // A text that fits comes back unchanged, whatever the mode and the replacement.
    void textThatFits()
    {
        QFETCH(EllipsisMode, mode);
        QFETCH(QString, replacement);
        QFETCH(int, margin);
        QWidget widget;
        const QString text = QStringLiteral("Gain");
        widget.resize(QFontMetrics(widget.font()).horizontalAdvance(text) + margin, 20);
        QCOMPARE(elidedText(text, widget, margin, mode, replacement), text);
    }

    void textThatDoesNotFit_data()
    {
        QTest::addColumn<EllipsisMode>("mode");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("margin");
        QTest::addColumn<bool>("replaced");
        QTest::newRow("elide") << EllipsisMode::Elide << dashes << 100 << 0 << false;
        QTest::newRow("elide with margin") << EllipsisMode::Elide << dashes << 100 << 30 << false;
        QTest::newRow("replace by three dashes") << EllipsisMode::Replace << dashes << 100 << 0 << true;
        QTest::newRow("replace by nothing") << EllipsisMode::Replace << QString() << 100 << 0 << true;
        QTest::newRow("other mode value replaces") << static_cast<EllipsisMode>(7) << dashes << 100 << 0 << true;
        QTest::newRow("one pixel short") << EllipsisMode::Elide << dashes << -1 << 0 << false;
    }

    void textThatDoesNotFit()
    {
        QFETCH(EllipsisMode, mode);
        QFETCH(QString, replacement);
        QFETCH(int, width);
        QFETCH(int, margin);
        QFETCH(bool, replaced);
        QWidget widget;
        if (width < 0)
            width = QFontMetrics(widget.font()).horizontalAdvance(longText) - 1;
        widget.resize(width, 20);

        const QString result = elidedText(longText, widget, margin, mode, replacement);
        if (replaced) {
            QCOMPARE(result, replacement);
            return;
        }
        const QString expected = fontElided(widget, longText, width - margin);
        QVERIFY(expected != longText);
        QCOMPARE(result, expected);
        // Always cut at the right.
        QVERIFY(result.endsWith(QChar(0x2026)));
        QVERIFY(longText.startsWith(result.chopped(1)));
    }

    void marginAsWideAsTheWidget_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("extraMargin");
        QTest::addColumn<EllipsisMode>("mode");
        QTest::newRow("two characters, margin equal to width, elide")
            << QStringLiteral("ii") << 0 << EllipsisMode::Elide;
        QTest::newRow("two characters, margin equal to width, replace")
            << QStringLiteral("ii") << 0 << EllipsisMode::Replace;
        QTest::newRow("word, margin larger than width, elide") << QStringLiteral("Gain") << 25 << EllipsisMode::Elide;
        QTest::newRow("word, margin larger than width, replace")
            << QStringLiteral("Gain") << 25 << EllipsisMode::Replace;
    }

    // A margin that leaves no room makes every non-empty text elide.
    void marginAsWideAsTheWidget()
    {
        QFETCH(QString, text);
        QFETCH(int, extraMargin);
        QFETCH(EllipsisMode, mode);
        QWidget widget;
        widget.resize(200, 20);
        const int margin = widget.width() + extraMargin;
        const QString result = elidedText(text, widget, margin, mode, dashes);
        QVERIFY(result != text);
        QCOMPARE(result, mode == EllipsisMode::Elide ? fontElided(widget, text, widget.width() - margin) : dashes);
    }

    // Qt never shortens a single character, however little room there is.
    void singleCharacterIsKept()
    {
        QWidget widget;
        widget.resize(200, 20);
        QCOMPARE(elidedText(QStringLiteral("W"), widget, 250, EllipsisMode::Replace, dashes), QStringLiteral("W"));
    }

    void emptyTextAlwaysFits()
    {
        QWidget widget;
        widget.resize(10, 20);
        QCOMPARE(elidedText(QString(), widget, 50, EllipsisMode::Replace, dashes), QString());
        QCOMPARE(elidedText(QStringLiteral(""), widget, 50, EllipsisMode::Elide, dashes), QStringLiteral(""));
    }

    // The widget's own font decides, not the application's.
    void measuredWithTheWidgetsFont()
    {
        QWidget widget;
        const QString text = QStringLiteral("Input 12");
        widget.resize(QFontMetrics(widget.font()).horizontalAdvance(text) + 2, 20);
        QCOMPARE(elidedText(text, widget, 0, EllipsisMode::Replace, dashes), text);

        widget.setFont(ko::qtToolkit::test::fixedFont(24));
        QCOMPARE(elidedText(text, widget, 0, EllipsisMode::Replace, dashes), dashes);
        QCOMPARE(elidedText(text, widget, 0, EllipsisMode::Elide, dashes), fontElided(widget, text, widget.width()));
    }

    // An ampersand is a character like any other here, not a mnemonic marker.
    void ampersandIsMeasured()
    {
        QWidget widget;
        const QString text = QStringLiteral("&Save");
        const QFontMetrics metrics(widget.font());
        widget.resize(metrics.horizontalAdvance(QStringLiteral("Save")) + 1, 20);
        QCOMPARE(metrics.elidedText(text, Qt::ElideRight, widget.width(), Qt::TextShowMnemonic), text);
        QCOMPARE(elidedText(text, widget, 0, EllipsisMode::Replace, dashes), dashes);
    }
};

QTEST_MAIN(tst_ElidedText)
#include "tst_ElidedText.moc"
