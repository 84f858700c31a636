// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// The gallery shows every widget of the library under its style sheets, one page per part; the
// switch in the corner of the tabs changes between the light and the dark sheet live.
//
//   ko-qttoolkit-gallery                    opens the gallery window
//   ko-qttoolkit-gallery --screenshot DIR   renders every page in both themes to
//                                           DIR/<nn>-<page>.png and DIR/<nn>-<page>-dark.png
//                                           and exits

#include "GalleryPage.h"

#include <ko/qtToolkit/qtToolkit.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>

namespace {

QString styleSheet(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    return QString::fromUtf8(file.readAll());
}

QString fileNameFor(int index, const QString &title, bool dark)
{
    QString slug = title.toLower();
    slug.replace(QLatin1Char(' '), QLatin1Char('-'));
    return QStringLiteral("%1-%2%3.png")
        .arg(index + 1, 2, 10, QLatin1Char('0'))
        .arg(slug, dark ? QStringLiteral("-dark") : QString());
}

int renderScreenshots(QTabWidget &window, QPushButton &darkTheme, const QString &directory)
{
    QDir().mkpath(directory);
    QTextStream out(stdout);
    for (const bool dark : {false, true}) {
        darkTheme.setChecked(dark);
        for (int i = 0; i < window.count(); ++i) {
            window.setCurrentIndex(i);
            QApplication::processEvents();
            const QString path = QDir(directory).absoluteFilePath(fileNameFor(i, window.tabText(i), dark));
            if (!window.grab().save(path)) {
                QTextStream(stderr) << "could not write " << path << '\n';
                return 1;
            }
            out << path << '\n';
        }
    }
    out << "screenshots: " << window.count() << " pages in 2 themes\n";
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ko-qttoolkit-gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("The widgets of ko_qtToolkit_cxx under its style sheet."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Render every page to a PNG file in <dir> and exit."),
                                        QStringLiteral("dir"));
    parser.addOption(screenshot);
    parser.process(app);

    const QString lightSheet = styleSheet(QStringLiteral(":/qtToolkit.qss"));
    const QString darkSheet = styleSheet(QStringLiteral(":/ko/qtToolkit-dark.qss"));
    app.setStyleSheet(lightSheet);

    QVector<gallery::Page> pages = gallery::pages();
    std::stable_sort(pages.begin(), pages.end(),
                     [](const gallery::Page &a, const gallery::Page &b) { return a.order < b.order; });

    QTabWidget window;
    window.setWindowTitle(QStringLiteral("ko_qtToolkit_cxx gallery (interface %1)")
                              .arg(ko::qtToolkit::getInterfaceVersion()));
    for (const gallery::Page &page : pages)
        window.addTab(page.create(), page.title);

    // The theme switch: the application's sheet is replaced, and Qt restyles every widget.
    auto *darkTheme = new QPushButton(QStringLiteral("Dark theme"));
    darkTheme->setCheckable(true);
    darkTheme->setFocusPolicy(Qt::NoFocus);
    QObject::connect(darkTheme, &QPushButton::toggled, &app, [&app, &lightSheet, &darkSheet](bool dark) {
        app.setStyleSheet(dark ? darkSheet : lightSheet);
    });
    window.setCornerWidget(darkTheme, Qt::TopRightCorner);

    window.resize(1024, 720);
    window.show();

    if (parser.isSet(screenshot))
        return renderScreenshots(window, *darkTheme, parser.value(screenshot));
    return app.exec();
}
