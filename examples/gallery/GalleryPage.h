// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_GALLERY_GALLERYPAGE_H
#define KO_QTTOOLKIT_GALLERY_GALLERYPAGE_H

#include <QString>
#include <QVector>

#include <functional>

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

} // namespace gallery

#endif
