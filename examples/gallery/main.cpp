// The gallery shows every widget of the library under its style sheet, one page per part.
//
//   ko-qttoolkit-gallery                    opens the gallery window
//   ko-qttoolkit-gallery --screenshot DIR   renders every page to DIR/<nn>-<page>.png and exits

#include "GalleryPage.h"

#include <ko/qtToolkit/qtToolkit.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>

namespace {

QString styleSheet()
{
    QFile file(QStringLiteral(":/qtToolkit.qss"));
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    return QString::fromUtf8(file.readAll());
}

QString fileNameFor(int index, const QString &title)
{
    QString slug = title.toLower();
    slug.replace(QLatin1Char(' '), QLatin1Char('-'));
    return QStringLiteral("%1-%2.png").arg(index + 1, 2, 10, QLatin1Char('0')).arg(slug);
}

int renderScreenshots(QTabWidget &window, const QString &directory)
{
    QDir().mkpath(directory);
    QTextStream out(stdout);
    for (int i = 0; i < window.count(); ++i) {
        window.setCurrentIndex(i);
        QApplication::processEvents();
        const QString path = QDir(directory).absoluteFilePath(fileNameFor(i, window.tabText(i)));
        if (!window.grab().save(path)) {
            QTextStream(stderr) << "could not write " << path << '\n';
            return 1;
        }
        out << path << '\n';
    }
    out << "screenshots: " << window.count() << " pages\n";
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

    app.setStyleSheet(styleSheet());

    QVector<gallery::Page> pages = gallery::pages();
    std::stable_sort(pages.begin(), pages.end(),
                     [](const gallery::Page &a, const gallery::Page &b) { return a.order < b.order; });

    QTabWidget window;
    window.setWindowTitle(QStringLiteral("ko_qtToolkit_cxx gallery (interface %1)")
                              .arg(ko::qtToolkit::getInterfaceVersion()));
    for (const gallery::Page &page : pages)
        window.addTab(page.create(), page.title);
    window.resize(1024, 720);
    window.show();

    if (parser.isSet(screenshot))
        return renderScreenshots(window, parser.value(screenshot));
    return app.exec();
}
