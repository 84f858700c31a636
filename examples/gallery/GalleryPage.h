// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_GALLERY_GALLERYPAGE_H
#define KO_QTTOOLKIT_GALLERY_GALLERYPAGE_H

#include <QString>
#include <QVector>

#include <functional>

class QLayout;
class QScrollArea;
class QWidget;

namespace gallery {

/// A page of the gallery: its place among the pages, its tab title and how to build it.
struct Page
{
    int order;
    QString title;
    std::function<QWidget *()> create;
};

/// The pages registered so far, in no particular order.
QVector<Page> &pages();

/// Registers a page at static initialisation: `static const gallery::PageRegistration r{...};`
struct PageRegistration
{
    PageRegistration(int order, const QString &title, std::function<QWidget *()> create)
    {
        pages().append({order, title, std::move(create)});
    }
};

/**
 * A frameless scroll area around \a contents (which it takes), for a page that does not fit on
 * the small panels. Before each relayout, \a arrange (optional) is told the width the page
 * has, so that the page can reflow into fewer columns instead of scrolling sideways.
 */
QScrollArea *scrollable(QWidget *contents, std::function<void(int width)> arrange = {});

/**
 * scrollable() for a page with a wide and a narrow arrangement of its boxes in \a layout:
 * \a place(narrow) puts them in one or the other. The wide one is used while the page is at
 * least as wide as the wide arrangement needs; narrower panels get the narrow one.
 */
QScrollArea *reflowing(QWidget *contents, QLayout *layout, std::function<void(bool narrow)> place);

} // namespace gallery

#endif
