#include "GalleryPage.h"

namespace gallery {

QVector<Page> &pages()
{
    static QVector<Page> registered;
    return registered;
}

} // namespace gallery
