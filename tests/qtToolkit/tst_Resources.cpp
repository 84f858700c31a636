// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/qtToolkit.h>

#include <TestSupport.h>

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QResource>
#include <QTest>

namespace {

struct IconFile
{
    const char *name;
    const char *colour;
};

// Every icon of the bundle with the colour it is drawn in.
const IconFile icons[] = {
    {"ic_arrow_drop_down_black_24px.svg", "#000000"},
    {"ic_arrow_drop_down_gray_24px.svg", "#b3b3b3"},
    {"ic_arrow_drop_down_white_24px.svg", "#ffffff"},
    {"ic_arrow_drop_up_black_24px.svg", "#000000"},
    {"ic_arrow_drop_up_gray_24px.svg", "#b3b3b3"},
    {"ic_arrow_drop_up_white_24px.svg", "#ffffff"},
    {"ic_arrow_drop_left_black_24px.svg", "#000000"},
    {"ic_arrow_drop_left_gray_24px.svg", "#b3b3b3"},
    {"ic_arrow_drop_right_black_24px.svg", "#000000"},
    {"ic_arrow_drop_right_gray_24px.svg", "#b3b3b3"},
    {"ic_arrow_drop_updown_black_24px.svg", "#000000"},
    {"ic_arrow_drop_updown_gray_24px.svg", "#b3b3b3"},
    {"ic_arrow_drop_updown_white_24px.svg", "#ffffff"},
    {"ic_check_box_black_24px.svg", "#000000"},
    {"ic_check_box_gray_24px.svg", "#b3b3b3"},
    {"ic_check_box_white_24px.svg", "#ffffff"},
    {"ic_check_box_outline_blank_black_24px.svg", "#000000"},
    {"ic_check_box_outline_blank_gray_24px.svg", "#b3b3b3"},
    {"ic_check_box_outline_blank_white_24px.svg", "#ffffff"},
    {"ic_indeterminate_check_box_black_24px.svg", "#000000"},
    {"ic_indeterminate_check_box_gray_24px.svg", "#b3b3b3"},
    {"ic_indeterminate_check_box_white_24px.svg", "#ffffff"},
    {"ic_radio_button_checked_black_24px.svg", "#000000"},
    {"ic_radio_button_checked_gray_24px.svg", "#b3b3b3"},
    {"ic_radio_button_checked_white_24px.svg", "#ffffff"},
    {"ic_radio_button_unchecked_black_24px.svg", "#000000"},
    {"ic_radio_button_unchecked_gray_24px.svg", "#b3b3b3"},
    {"ic_radio_button_unchecked_white_24px.svg", "#ffffff"},
    {"ic_cross_darkgray_24px.svg", "#303030"},
    {"ic_cross_red_24px.svg", "#c31a00"},
};

const char *const scrollBarArrows[] = {
    "scrollbar-arrow-up.png",
    "scrollbar-arrow-down.png",
    "scrollbar-arrow-left.png",
    "scrollbar-arrow-right.png",
};

QString rootPath(const char *name)
{
    return QStringLiteral(":/") + QLatin1String(name);
}

} // namespace

class tst_Resources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Using the library is all it takes: no Q_INIT_RESOURCE, no registration call.
    void initTestCase()
    {
        QCOMPARE(ko::qtToolkit::getInterfaceVersion(), 101u);
    }

    void styleSheetReadableAsText()
    {
        QFile file(QStringLiteral(":/qtToolkit.qss"));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QString text = QString::fromUtf8(file.readAll());
        QVERIFY(text.contains(QLatin1String("ko--qtToolkit--widget--Fader")));
    }

    void closeIconsExist()
    {
        QVERIFY(QFile::exists(QStringLiteral(":/ic_cross_red_24px.svg")));
        QVERIFY(QFile::exists(QStringLiteral(":/ic_cross_darkgray_24px.svg")));
    }

    void listViewArrowsAreNotInTheBundle()
    {
        QVERIFY(!QFile::exists(QStringLiteral(":/ic_arrow_up_gray_24px.svg")));
        QVERIFY(!QFile::exists(QStringLiteral(":/ic_arrow_down_gray_24px.svg")));
        QVERIFY(QIcon(QStringLiteral(":/ic_arrow_up_gray_24px.svg")).pixmap(24, 24).isNull());
    }

    void exactlyTheBundleFilesAtTheRoot()
    {
        QStringList expected{QStringLiteral("qtToolkit.qss")};
        for (const IconFile &icon : icons)
            expected << QLatin1String(icon.name);
        for (const char *image : scrollBarArrows)
            expected << QLatin1String(image);
        expected.sort();
        QCOMPARE(expected.size(), 35);

        QStringList files = QDir(QStringLiteral(":/")).entryList(QDir::Files | QDir::Hidden);
        files.sort();
        QCOMPARE(files, expected);

        // Qt keeps its own resources in folders of its own; the library adds one, "ko", for its
        // second collection (the dark sheet), which leaves the bundle's files as they are.
        const QStringList knownFolders{QStringLiteral("qgradient"), QStringLiteral("qpdf"),
                                       QStringLiteral("qt-project.org"), QStringLiteral("ko")};
        const QStringList dirs = QDir(QStringLiteral(":/")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &dir : dirs)
            QVERIFY2(knownFolders.contains(dir), qPrintable(dir));
    }

    void styleSheetIsZlibCompressed()
    {
        QVERIFY(ko::qtToolkit::test::isStoredZlibCompressed(QStringLiteral(":/qtToolkit.qss")));
    }

    void imagesAreStoredUncompressed_data()
    {
        QTest::addColumn<QString>("path");
        for (const IconFile &icon : icons)
            QTest::newRow(icon.name) << rootPath(icon.name);
        for (const char *image : scrollBarArrows)
            QTest::newRow(image) << rootPath(image);
    }

    void imagesAreStoredUncompressed()
    {
        QFETCH(QString, path);
        const QResource resource(path);
        QVERIFY(resource.isValid());
        QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
        QCOMPARE(resource.size(), resource.uncompressedSize());
    }

    void iconColour_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QColor>("colour");
        for (const IconFile &icon : icons)
            QTest::newRow(icon.name) << rootPath(icon.name) << QColor(QLatin1String(icon.colour));
    }

    // Each icon is a 24x24 drawing in exactly one colour: every fully covered pixel has it.
    void iconColour()
    {
        QFETCH(QString, path);
        QFETCH(QColor, colour);

        QCOMPARE(QImageReader(path).size(), QSize(24, 24));
        const QIcon icon(path);
        QVERIFY(!icon.isNull());
        QCOMPARE(icon.actualSize(QSize(24, 24)), QSize(24, 24));

        QCOMPARE(icon.pixmap(24, 24).size(), QSize(24, 24));
        const ko::qtToolkit::test::IconCoverage coverage = ko::qtToolkit::test::iconCoverage(path, colour);
        QCOMPARE(coverage.otherColour, 0);
        QVERIFY2(coverage.opaque >= 10, qPrintable(QStringLiteral("only %1 opaque pixels").arg(coverage.opaque)));
        QVERIFY(coverage.opaque < 24 * 24); // a shape, not a filled square
    }

    void scrollBarImages_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *image : scrollBarArrows)
            QTest::newRow(image) << rootPath(image);
    }

    void scrollBarImages()
    {
        QFETCH(QString, path);
        QImageReader reader(path);
        QCOMPARE(reader.format(), QByteArray("png"));
        const QImage image = reader.read();
        QCOMPARE(image.size(), QSize(14, 14));
        QVERIFY(image.hasAlphaChannel());
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);       // transparent corner
        QCOMPARE(image.pixelColor(7, 7).alpha(), 255);     // the arrow itself
    }
};

QTEST_MAIN(tst_Resources)
#include "tst_Resources.moc"
