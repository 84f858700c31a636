// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/qtToolkit.h>

#include <TestSupport.h>

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImageReader>
#include <QMap>
#include <QRegularExpression>
#include <QResource>
#include <QSet>
#include <QTest>

namespace {

// The files of the dark collection under ":/ko/": the sheet and the images the bundle has no
// variant of for dark backgrounds.
const char *const darkFiles[] = {
    "qtToolkit-dark.qss",
    "ic_arrow_drop_down_dimgray_24px.svg",
    "ic_arrow_drop_left_dimgray_24px.svg",
    "ic_arrow_drop_left_white_24px.svg",
    "ic_arrow_drop_right_dimgray_24px.svg",
    "ic_arrow_drop_right_white_24px.svg",
    "ic_arrow_drop_up_dimgray_24px.svg",
    "ic_arrow_drop_updown_dimgray_24px.svg",
    "ic_check_box_dimgray_24px.svg",
    "ic_check_box_outline_blank_dimgray_24px.svg",
    "ic_cross_lightgray_24px.svg",
    "ic_cross_lightred_24px.svg",
    "ic_indeterminate_check_box_dimgray_24px.svg",
    "ic_radio_button_checked_dimgray_24px.svg",
    "ic_radio_button_unchecked_dimgray_24px.svg",
    "scrollbar-arrow-down.png",
    "scrollbar-arrow-left.png",
    "scrollbar-arrow-right.png",
    "scrollbar-arrow-up.png",
};

struct Block
{
    QStringList selectors; // as written, white space folded
    QStringList declarations;
};

// The rules of a sheet, comments removed.
QVector<Block> blocksOf(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    QVector<Block> blocks;
    const QStringList parts = text.split(QLatin1Char('}'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const int brace = part.indexOf(QLatin1Char('{'));
        if (brace < 0)
            continue;
        Block block;
        for (const QString &selector : part.left(brace).split(QLatin1Char(',')))
            block.selectors << selector.simplified();
        for (const QString &declaration : part.mid(brace + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            if (!declaration.simplified().isEmpty())
                block.declarations << declaration.simplified();
        }
        blocks << block;
    }
    return blocks;
}

QSet<QString> selectorsOf(const QString &sheet)
{
    QSet<QString> selectors;
    for (const Block &block : blocksOf(sheet)) {
        for (const QString &selector : block.selectors)
            selectors.insert(selector);
    }
    return selectors;
}

// The dynamic-property hooks the selectors test, as "name=value".
QSet<QString> propertyHooksOf(const QString &sheet)
{
    QSet<QString> hooks;
    const QRegularExpression attribute(QStringLiteral("\\[([^\\]=]+)=([^\\]]+)\\]"));
    for (const QString &selector : selectorsOf(sheet)) {
        auto it = attribute.globalMatch(selector);
        while (it.hasNext()) {
            const QRegularExpressionMatch match = it.next();
            hooks.insert(match.captured(1) + QLatin1Char('=') + match.captured(2));
        }
    }
    return hooks;
}

// What a sheet makes of each selector's size: lengths, margins, paddings, radii, sub-control
// placement, alignment and the width of borders; colours are left out.
QMap<QString, QStringList> sizesOf(const QString &sheet)
{
    const QRegularExpression sizeProperty(QStringLiteral(
        "^(min-|max-)?(width|height)$|^margin|^padding|radius$|^subcontrol-|^qproperty-alignment$|^spacing$"));
    const QRegularExpression borderProperty(QStringLiteral("^border(-(top|right|bottom|left))?$"));
    QMap<QString, QStringList> sizes;
    for (const Block &block : blocksOf(sheet)) {
        QStringList found;
        for (const QString &declaration : block.declarations) {
            const int colon = declaration.indexOf(QLatin1Char(':'));
            const QString property = declaration.left(colon).trimmed();
            const QString value = declaration.mid(colon + 1).trimmed();
            if (sizeProperty.match(property).hasMatch())
                found << property + QStringLiteral(": ") + value;
            else if (borderProperty.match(property).hasMatch())
                found << property + QStringLiteral(" width: ") + value.section(QLatin1Char(' '), 0, 0);
        }
        for (const QString &selector : block.selectors)
            sizes[selector] << found;
    }
    for (QStringList &list : sizes)
        list.sort();
    return sizes;
}

QString joined(QStringList list)
{
    list.sort();
    return list.join(QStringLiteral(", "));
}

QColor colourOfVariant(const QString &fileName)
{
    if (fileName.contains(QLatin1String("_white_")))
        return QColor(0xff, 0xff, 0xff);
    if (fileName.contains(QLatin1String("_dimgray_")))
        return QColor(0x69, 0x69, 0x69);
    if (fileName.contains(QLatin1String("_lightgray_")))
        return QColor(0xcc, 0xcc, 0xcc);
    if (fileName.contains(QLatin1String("_lightred_")))
        return QColor(0xff, 0x5c, 0x4d);
    return {};
}

} // namespace

class tst_DarkStyleSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Like the bundle, the dark collection arrives with the library: no call is needed.
    void initTestCase()
    {
        QCOMPARE(ko::qtToolkit::getInterfaceVersion(), 101u);
    }

    void readableAsText()
    {
        const QString sheet = ko::qtToolkit::test::darkToolkitStyleSheet();
        QVERIFY(sheet.contains(QLatin1String("ko--qtToolkit--widget--Fader")));
    }

    void storedZlibCompressed()
    {
        QVERIFY(ko::qtToolkit::test::isStoredZlibCompressed(QStringLiteral(":/ko/qtToolkit-dark.qss")));
    }

    void exactlyTheDarkFilesUnderKo()
    {
        QStringList expected;
        for (const char *file : darkFiles)
            expected << QLatin1String(file);
        expected.sort();
        QStringList files = QDir(QStringLiteral(":/ko")).entryList(QDir::Files | QDir::Hidden);
        files.sort();
        QCOMPARE(files, expected);
        QVERIFY(QDir(QStringLiteral(":/ko")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
    }

    // Both sheets reach the same widgets in the same states: an application can swap one for the
    // other without a widget losing its look.
    void sameSelectorsAsTheLightSheet()
    {
        const QSet<QString> light = selectorsOf(ko::qtToolkit::test::toolkitStyleSheet());
        const QSet<QString> dark = selectorsOf(ko::qtToolkit::test::darkToolkitStyleSheet());
        QVERIFY(light.size() > 100);
        QCOMPARE(joined((dark - light).values()), QString());
        QCOMPARE(joined((light - dark).values()), QString());
    }

    void samePropertyHooksAsTheLightSheet()
    {
        const QSet<QString> light = propertyHooksOf(ko::qtToolkit::test::toolkitStyleSheet());
        const QSet<QString> dark = propertyHooksOf(ko::qtToolkit::test::darkToolkitStyleSheet());
        for (const char *hook : {"class=critical", "class=close", "class=fine", "class=coarse", "top=true",
                                 "bottom=true", "arrowType=left", "arrowType=right", "arrowType=up",
                                 "arrowType=down"})
            QVERIFY2(dark.contains(QLatin1String(hook)), hook);
        QCOMPARE(joined(dark.values()), joined(light.values()));
    }

    // Switching sheets changes colours only: nothing moves or changes size.
    void sameSizesAsTheLightSheet()
    {
        const QMap<QString, QStringList> light = sizesOf(ko::qtToolkit::test::toolkitStyleSheet());
        const QMap<QString, QStringList> dark = sizesOf(ko::qtToolkit::test::darkToolkitStyleSheet());
        QCOMPARE(dark.keys(), light.keys());
        for (auto it = light.cbegin(); it != light.cend(); ++it)
            QVERIFY2(dark.value(it.key()) == it.value(), qPrintable(it.key()));
    }

    // The chart style's colours: the background of every widget and the lines.
    void chartColours()
    {
        const QVector<Block> blocks = blocksOf(ko::qtToolkit::test::darkToolkitStyleSheet());
        const auto universal = std::find_if(blocks.cbegin(), blocks.cend(),
                                            [](const Block &b) { return b.selectors == QStringList{QStringLiteral("*")}; });
        QVERIFY(universal != blocks.cend());
        QVERIFY(universal->declarations.contains(QStringLiteral("background-color: #1a1a1a")));
        const auto groupBox = std::find_if(blocks.cbegin(), blocks.cend(), [](const Block &b) {
            return b.selectors == QStringList{QStringLiteral("QGroupBox")};
        });
        QVERIFY(groupBox != blocks.cend());
        QVERIFY(groupBox->declarations.contains(QStringLiteral("border: 2 solid #333333")));
    }

    void everyImageExists_data()
    {
        QTest::addColumn<QString>("path");
        const QRegularExpression url(QStringLiteral("url\\(([^)]+)\\)"));
        QSet<QString> seen;
        auto it = url.globalMatch(ko::qtToolkit::test::darkToolkitStyleSheet());
        while (it.hasNext()) {
            const QString path = it.next().captured(1);
            if (!seen.contains(path))
                QTest::newRow(qPrintable(path)) << path;
            seen.insert(path);
        }
        QVERIFY(seen.size() >= 20);
    }

    void everyImageExists()
    {
        QFETCH(QString, path);
        QVERIFY(QFile::exists(path));
        QVERIFY(!QIcon(path).pixmap(24, 24).isNull());
    }

    // The icons light and dim for dark backgrounds are never black, and none is gray: the white
    // of the bundle for normal states, a gray dimmer than the bundle's for disabled ones.
    void darkIconsAreLight_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QColor>("colour");
        for (const char *file : darkFiles) {
            const QString name = QLatin1String(file);
            if (name.endsWith(QLatin1String(".svg")))
                QTest::newRow(file) << QStringLiteral(":/ko/") + name << colourOfVariant(name);
        }
    }

    void darkIconsAreLight()
    {
        QFETCH(QString, path);
        QFETCH(QColor, colour);
        QVERIFY(colour.isValid());
        QCOMPARE(QImageReader(path).size(), QSize(24, 24));
        const ko::qtToolkit::test::IconCoverage coverage = ko::qtToolkit::test::iconCoverage(path, colour);
        QCOMPARE(coverage.otherColour, 0);
        QVERIFY(coverage.opaque >= 10);
        QVERIFY(coverage.opaque < 24 * 24);
    }

    void scrollBarArrowsAreLight_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *direction : {"up", "down", "left", "right"})
            QTest::newRow(direction) << QStringLiteral(":/ko/scrollbar-arrow-%1.png").arg(QLatin1String(direction));
    }

    void scrollBarArrowsAreLight()
    {
        QFETCH(QString, path);
        const QImage image = QImageReader(path).read();
        QCOMPARE(image.size(), QSize(14, 14));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(7, 7).alpha(), 255);
        QCOMPARE(QColor(image.pixelColor(7, 7).rgb()).name(), QStringLiteral("#b3b3b3"));
    }
};

QTEST_MAIN(tst_DarkStyleSheet)
#include "tst_DarkStyleSheet.moc"
