// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "GalleryPage.h"

#include <QEvent>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>

#include <memory>

namespace gallery {

namespace {

// Tells a page the width of the viewport it is shown in, whenever that changes.
class WidthWatcher : public QObject
{
public:
    WidthWatcher(QScrollArea *area, std::function<void(int)> arrange)
        : QObject(area)
        , m_area(area)
        , m_arrange(std::move(arrange))
    {
        area->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The scroll area's own size, less its frame: the viewport's width would depend on
        // whether the page's last arrangement needed a scroll bar.
        if (watched == m_area && event->type() == QEvent::Resize)
            m_arrange(m_area->contentsRect().width() - m_area->verticalScrollBar()->sizeHint().width());
        return false;
    }

private:
    QScrollArea *m_area;
    std::function<void(int)> m_arrange;
};

} // namespace

QVector<Page> &pages()
{
    static QVector<Page> registered;
    return registered;
}

QScrollArea *scrollable(QWidget *contents, std::function<void(int width)> arrange)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    // The page keeps the window's background under both sheets: neither the viewport nor the
    // page paints one of its own.
    contents->setAutoFillBackground(false);
    if (arrange)
        new WidthWatcher(area, std::move(arrange));
    return area;
}

QScrollArea *reflowing(QWidget *contents, QLayout *layout, std::function<void(bool narrow)> place)
{
    struct State
    {
        bool narrow = true;
        // The smallest width of the wide arrangement, measured while it is in place.
        int wideWidth = 0;
    };
    auto state = std::make_shared<State>();
    auto arrange = [contents, layout, place = std::move(place), state](int width) {
        if (!state->narrow)
            state->wideWidth = layout->minimumSize().width();
        const bool narrow = width < state->wideWidth;
        if (narrow == state->narrow)
            return;
        state->narrow = narrow;
        place(narrow);
        contents->updateGeometry();
    };
    arrange(QWIDGETSIZE_MAX);
    return scrollable(contents, std::move(arrange));
}

} // namespace gallery
