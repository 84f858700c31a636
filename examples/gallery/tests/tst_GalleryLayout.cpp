// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Every page of the gallery at every window size it is made for, in both themes: each widget that
// a page's layouts place lies inside its parent, so inside the window or inside the scroll area
// that reaches it, is at least as large as it asks to be, and overlaps none of its siblings. The
// tabs all fit beside the theme switch.

#include "GalleryWindow.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTest>

#include <utility>

namespace {

bool inLayout(const QLayout *layout, const QWidget *widget)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget() == widget)
            return true;
        if (item->layout() && inLayout(item->layout(), widget))
            return true;
    }
    return false;
}

// Whether the page put \a widget where it is, through a layout or a splitter, as opposed to the
// children a widget arranges itself (a combo box's or a scroll area's parts).
bool isPlaced(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (const auto *splitter = qobject_cast<const QSplitter *>(parent))
        return splitter->indexOf(const_cast<QWidget *>(widget)) >= 0;
    return parent && parent->layout() && inLayout(parent->layout(), widget);
}

// Qt's composite widgets whose parts are theirs to arrange, not the page's.
bool arrangesItsOwnParts(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || qobject_cast<const QScrollBar *>(widget) || qobject_cast<const QGraphicsView *>(widget)
        || qobject_cast<const QTabBar *>(widget);
}

QString describe(const QWidget *widget)
{
    QString text;
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        text = button->text();
    else if (const auto *label = qobject_cast<const QLabel *>(widget))
        text = label->text();
    else if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        text = box->title();
    QString name = QString::fromLatin1(widget->metaObject()->className());
    const QString id = widget->property("TestID").toString();
    if (!id.isEmpty())
        name += QStringLiteral(" #") + id;
    if (!text.isEmpty())
        name += QStringLiteral(" \"") + text.left(30).replace(QLatin1Char('\n'), QLatin1Char(' ')) + QLatin1Char('"');
    return name;
}

QString path(const QWidget *widget, const QWidget *page)
{
    QStringList names;
    for (const QWidget *w = widget; w && w != page; w = w->parentWidget()) {
        if (isPlaced(w) || qobject_cast<const QGroupBox *>(w))
            names.prepend(describe(w));
    }
    return names.join(QStringLiteral(" > "));
}

QString rectText(const QRect &r)
{
    return QStringLiteral("%1x%2 at %3,%4").arg(r.width()).arg(r.height()).arg(r.x()).arg(r.y());
}

QString sizeText(const QSize &s)
{
    return QStringLiteral("%1x%2").arg(s.width()).arg(s.height());
}

// The smallest size a layout gives \a widget while it has the room.
QSize smallestSize(const QWidget *widget)
{
    const QSizePolicy policy = widget->sizePolicy();
    const QSize hint = widget->sizeHint();
    const QSize minimumHint = widget->minimumSizeHint();
    auto along = [](int explicitMinimum, QSizePolicy::Policy p, int hintValue, int minimumHintValue) {
        if (explicitMinimum > 0)
            return explicitMinimum;
        if (p == QSizePolicy::Ignored)
            return 0;
        return (p & QSizePolicy::ShrinkFlag) ? minimumHintValue : hintValue;
    };
    QSize size(along(widget->minimumWidth(), policy.horizontalPolicy(), hint.width(), minimumHint.width()),
               along(widget->minimumHeight(), policy.verticalPolicy(), hint.height(), minimumHint.height()));
    // A word-wrapped label needs the height of its lines at its width. (A container's height
    // for its width is the height it prefers, not the least it needs.)
    if (qobject_cast<const QLabel *>(widget) && widget->hasHeightForWidth() && widget->minimumHeight() == 0
        && policy.verticalPolicy() != QSizePolicy::Ignored)
        size.setHeight(widget->heightForWidth(widget->width()));
    return size.expandedTo(widget->minimumSize()).boundedTo(widget->maximumSize());
}

void checkChildren(const QWidget *parent, const QWidget *page, QStringList &problems)
{
    if (arrangesItsOwnParts(parent))
        return;
    QVector<const QWidget *> placed;
    for (const QObject *object : parent->children()) {
        const auto *child = qobject_cast<const QWidget *>(object);
        if (!child || child->isWindow() || !child->isVisible())
            continue;
        if (isPlaced(child) && !child->size().isEmpty())
            placed.append(child);
        checkChildren(child, page, problems);
    }

    for (const QWidget *child : placed) {
        if (!parent->rect().contains(child->geometry())) {
            problems << QStringLiteral("%1 (%2) sticks out of its parent (%3)")
                            .arg(path(child, page), rectText(child->geometry()), sizeText(parent->size()));
        }
        // A scroll area smaller than it asks to be still shows all of its contents by scrolling.
        const QSize smallest = qobject_cast<const QAbstractScrollArea *>(child) ? QSize() : smallestSize(child);
        if (child->width() < smallest.width() || child->height() < smallest.height()) {
            problems << QStringLiteral("%1 is squeezed to %2, below its %3")
                            .arg(path(child, page), sizeText(child->size()), sizeText(smallest));
        }
    }
    for (int i = 0; i < placed.size(); ++i) {
        for (int j = i + 1; j < placed.size(); ++j) {
            if (placed.at(i)->geometry().intersects(placed.at(j)->geometry())) {
                problems << QStringLiteral("%1 (%2) overlaps %3 (%4)")
                                .arg(path(placed.at(i), page), rectText(placed.at(i)->geometry()),
                                     path(placed.at(j), page), rectText(placed.at(j)->geometry()));
            }
        }
    }

    // A scroll area reaches all of its contents only if it may scroll where they are larger.
    if (const auto *area = qobject_cast<const QScrollArea *>(parent); area && area->widget()) {
        const QSize contents = area->widget()->size();
        const QSize viewport = area->viewport()->size();
        if ((contents.width() > viewport.width() && area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
            || (contents.height() > viewport.height() && area->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)) {
            problems << QStringLiteral("%1 cannot scroll to all of its %2 contents")
                            .arg(path(area, page), sizeText(contents));
        }
    }
}

} // namespace

class tst_GalleryLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void pages_data();
    void pages();
    void tabs_data();
    void tabs();

private:
    gallery::Window *m_window = nullptr;
};

void tst_GalleryLayout::initTestCase()
{
    m_window = new gallery::Window;
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    QVERIFY(m_window->count() > 0);
}

void tst_GalleryLayout::cleanupTestCase()
{
    delete m_window;
}

void tst_GalleryLayout::pages_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("dark");
    for (const bool dark : {false, true}) {
        for (const gallery::WindowSize &size : gallery::windowSizes()) {
            for (int i = 0; i < m_window->count(); ++i) {
                QTest::addRow("%s at %dx%d%s", qPrintable(m_window->tabText(i)), size.size.width(), size.size.height(),
                              dark ? ", dark" : "")
                    << i << size.size << dark;
            }
        }
    }
}

void tst_GalleryLayout::pages()
{
    QFETCH(int, page);
    QFETCH(QSize, size);
    QFETCH(bool, dark);

    m_window->setDarkTheme(dark);
    m_window->resize(size);
    m_window->setCurrentIndex(page);
    QApplication::processEvents();
    QCOMPARE(m_window->size(), size);

    QWidget *widget = m_window->widget(page);
    QStringList problems;
    const QRect onWindow(widget->mapTo(m_window, QPoint()), widget->size());
    if (!m_window->rect().contains(onWindow))
        problems << QStringLiteral("the page (%1) sticks out of the window").arg(rectText(onWindow));
    checkChildren(widget, widget, problems);
    for (const QString &problem : std::as_const(problems))
        qWarning("%s", qPrintable(problem));
    QVERIFY2(problems.isEmpty(), qPrintable(QStringLiteral("%1 problems, listed above").arg(problems.size())));
}

void tst_GalleryLayout::tabs_data()
{
    QTest::addColumn<QSize>("size");
    for (const gallery::WindowSize &size : gallery::windowSizes())
        QTest::addRow("%dx%d", size.size.width(), size.size.height()) << size.size;
}

void tst_GalleryLayout::tabs()
{
    QFETCH(QSize, size);

    m_window->setDarkTheme(false);
    m_window->resize(size);
    QApplication::processEvents();

    // Every tab in view at once, without the tab bar's scroll buttons, and clear of the switch.
    const QTabBar *bar = m_window->tabBar();
    for (int i = 0; i < bar->count(); ++i) {
        QVERIFY2(bar->rect().contains(bar->tabRect(i)),
                 qPrintable(QStringLiteral("tab %1 (%2) is outside the tab bar (%3)")
                                .arg(bar->tabText(i), rectText(bar->tabRect(i)), sizeText(bar->size()))));
    }
    const QRect switchRect = m_window->themeSwitch()->geometry();
    QVERIFY2(!bar->geometry().intersects(switchRect),
             qPrintable(QStringLiteral("the tab bar (%1) overlaps the theme switch (%2)")
                            .arg(rectText(bar->geometry()), rectText(switchRect))));
    // The style sheet's tab pane overlaps the tabs by a pixel, and the corner follows the pane:
    // its top row may lie above the window.
    QVERIFY2(m_window->rect().adjusted(0, -1, 0, 0).contains(switchRect),
             qPrintable(QStringLiteral("the theme switch (%1) is outside the window").arg(rectText(switchRect))));
}

QTEST_MAIN(tst_GalleryLayout)

#include "tst_GalleryLayout.moc"
