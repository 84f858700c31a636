// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"

#include "GalleryPage.h"

#include <ko/qtToolkit/qtToolkit.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QResizeEvent>
#include <QTabBar>
#include <QTextStream>

#include <algorithm>

namespace gallery {

namespace {

QString readStyleSheet(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    return QString::fromUtf8(file.readAll());
}

QString fileNameFor(int index, const QString &title, const QString &size, bool dark)
{
    QString name = title.toLower();
    name.replace(QLatin1Char(' '), QLatin1Char('-'));
    if (!size.isEmpty())
        name += QLatin1Char('-') + size;
    if (dark)
        name += QStringLiteral("-dark");
    return QStringLiteral("%1-%2.png").arg(index + 1, 2, 10, QLatin1Char('0')).arg(name);
}

} // namespace

QVector<WindowSize> windowSizes()
{
    return {{QString(), QSize(1024, 720)},
            {QStringLiteral("800x480"), QSize(800, 480)},
            {QStringLiteral("1024x600"), QSize(1024, 600)}};
}

Window::Window(QWidget *parent)
    : QTabWidget(parent)
    , m_lightSheet(readStyleSheet(QStringLiteral(":/qtToolkit.qss")))
    , m_darkSheet(readStyleSheet(QStringLiteral(":/ko/qtToolkit-dark.qss")))
    , m_themeSwitch(new QPushButton(QStringLiteral("Dark theme")))
{
    setWindowTitle(QStringLiteral("ko_qtToolkit_cxx gallery (interface %1)").arg(ko::qtToolkit::getInterfaceVersion()));
    qApp->setStyleSheet(m_lightSheet);

    QVector<Page> sorted = pages();
    std::stable_sort(sorted.begin(), sorted.end(), [](const Page &a, const Page &b) { return a.order < b.order; });
    for (const Page &page : sorted)
        addTab(page.create(), page.title);

    // On the small panels every tab stays in view beside the switch, its title shortened if need be.
    tabBar()->setElideMode(Qt::ElideRight);
    tabBar()->setUsesScrollButtons(false);

    // The theme switch: the application's sheet is replaced, and Qt restyles every widget.
    m_themeSwitch->setCheckable(true);
    m_themeSwitch->setFocusPolicy(Qt::NoFocus);
    connect(m_themeSwitch, &QPushButton::toggled, this,
            [this](bool dark) { qApp->setStyleSheet(dark ? m_darkSheet : m_lightSheet); });
    setCornerWidget(m_themeSwitch, Qt::TopRightCorner);

    resize(windowSizes().constFirst().size);
}

void Window::setDarkTheme(bool dark)
{
    m_themeSwitch->setChecked(dark);
}

void Window::resizeEvent(QResizeEvent *event)
{
    // Where the tabs and the switch's full caption do not fit side by side, the caption is
    // shortened before the tab titles are.
    const QString full = QStringLiteral("Dark theme");
    const int fullWidth = m_themeSwitch->fontMetrics().horizontalAdvance(full) - m_themeSwitch->fontMetrics().horizontalAdvance(m_themeSwitch->text())
                          + m_themeSwitch->sizeHint().width();
    m_themeSwitch->setText(tabBar()->sizeHint().width() + fullWidth > event->size().width() ? QStringLiteral("Dark")
                                                                                           : full);
    QTabWidget::resizeEvent(event);
}

QPushButton *Window::themeSwitch() const
{
    return m_themeSwitch;
}

bool Window::renderScreenshots(const QString &directory, QTextStream &out)
{
    QDir().mkpath(directory);
    for (const WindowSize &size : windowSizes()) {
        resize(size.size);
        for (const bool dark : {false, true}) {
            setDarkTheme(dark);
            for (int i = 0; i < count(); ++i) {
                setCurrentIndex(i);
                QApplication::processEvents();
                const QString path = QDir(directory).absoluteFilePath(fileNameFor(i, tabText(i), size.name, dark));
                if (!grab().save(path)) {
                    QTextStream(stderr) << "could not write " << path << '\n';
                    return false;
                }
                out << path << '\n';
            }
        }
    }
    out << "screenshots: " << count() << " pages in 2 themes at " << windowSizes().size() << " sizes\n";
    return true;
}

} // namespace gallery
