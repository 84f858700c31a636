// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// The gallery shows every widget of the library under its style sheets, one page per part; the
// switch in the corner of the tabs changes between the light and the dark sheet live.
//
//   ko-qttoolkit-gallery                    opens the gallery window
//   ko-qttoolkit-gallery --size 800x480     opens it at that size (the small touch panels)
//   ko-qttoolkit-gallery --screenshot DIR   renders every page in both themes to
//                                           DIR/<nn>-<page>.png and DIR/<nn>-<page>-dark.png,
//                                           and at 800 x 480 and 1024 x 600 to
//                                           DIR/<nn>-<page>-800x480[-dark].png and so on,
//                                           and exits

#include "GalleryWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QRegularExpression>
#include <QTextStream>

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
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Open the window at <width>x<height>."),
                                  QStringLiteral("size"));
    parser.addOption(screenshot);
    parser.addOption(size);
    parser.process(app);

    gallery::Window window;
    if (parser.isSet(size)) {
        const QRegularExpressionMatch match =
            QRegularExpression(QStringLiteral("^(\\d+)x(\\d+)$")).match(parser.value(size));
        if (!match.hasMatch()) {
            QTextStream(stderr) << "--size wants <width>x<height>, such as 800x480\n";
            return 2;
        }
        window.resize(match.captured(1).toInt(), match.captured(2).toInt());
    }
    window.show();

    if (parser.isSet(screenshot)) {
        QTextStream out(stdout);
        return window.renderScreenshots(parser.value(screenshot), out) ? 0 : 1;
    }
    return app.exec();
}
