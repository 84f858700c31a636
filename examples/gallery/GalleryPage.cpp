// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "GalleryPage.h"

namespace gallery {

QVector<Page> &pages()
{
    static QVector<Page> registered;
    return registered;
}

} // namespace gallery
