// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_TABLEWIDGET_H
#define KO_QTTOOLKIT_WIDGET_TABLEWIDGET_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QTableWidget>

#include <memory>

namespace ko::qtToolkit::widget {

class TableWidgetPrivate;

/**
 * \brief A table whose header sections can carry widgets, with a widget of its own in the corner.
 *
 * Buttons or editable captions can sit in the column and row heads; each covers its section and
 * follows it when the table scrolls, when sections are resized or moved and when the header is
 * shown. The headers paint nothing else. The top-left corner, where the two headers meet, can
 * hold a widget too.
 *
 * The class is abstract: a concrete table gives the size of its header sections through
 * headerSectionSize(). As Qt asks for any child added to a visible widget, widgets added while
 * the table is shown are shown by the caller (header widgets also appear at the header's next
 * show).
 */
class KO_QTTOOLKIT_EXPORT TableWidget : public QTableWidget
{
public:
    /**
     * \brief Builds an empty table with its two widget-carrying headers.
     * \param parent the parent widget, which owns the table.
     */
    explicit TableWidget(QWidget *parent = nullptr);
    ~TableWidget() override;

    /**
     * \brief Puts \a widget into a header section.
     *
     * Sets the header's default section size from headerSectionSize() (its width for columns,
     * its height for rows) and deletes the widget the section had before. The widget is placed
     * at the next scroll, section resize or move, or show of the header.
     * \param section the logical section.
     * \param orientation Qt::Horizontal for a column head, Qt::Vertical for a row head; any other
     *        value does nothing, and \a widget stays the caller's.
     * \param widget the widget, owned by the header from now on; null empties the section.
     */
    void setWidgetForHeaderSection(int section, Qt::Orientation orientation, QWidget *widget);

    /**
     * \brief The widget in a header section.
     * \return the widget, or null for an empty section or an orientation other than
     *         Qt::Horizontal and Qt::Vertical.
     */
    QWidget *widgetForHeaderSection(int section, Qt::Orientation orientation) const;

    /**
     * \brief Puts \a widget into the top-left corner, deleting the corner widget there before.
     *
     * The corner button is enabled exactly while there is a corner widget. The widget covers the
     * corner (as wide as the row heads, as high as the column heads) and follows the headers'
     * geometry.
     * \param widget the new corner widget, owned by the table from now on; null removes it.
     */
    void setTopLeftCornerWidget(QWidget *widget);

    /**
     * \brief The corner widget, or null.
     */
    QWidget *topLeftCornerWidget() const;

    /**
     * \brief Deletes all header-section widgets, then clears the table as QTableWidget::clear().
     *
     * The corner widget stays.
     */
    void clear();

    /**
     * \brief The size of a header section in \a orientation, and the thickness of that header.
     *
     * Its width is the width of a column head, its height the height of a row head; the column
     * header is as high as the height for Qt::Horizontal, the row header as wide as the width
     * for Qt::Vertical.
     */
    virtual QSize headerSectionSize(Qt::Orientation orientation) const = 0;

protected:
    /// \brief Scrolls, then places the column-head widgets when \a dx is not 0, else the row-head widgets.
    void scrollContentsBy(int dx, int dy) override;

private:
    std::unique_ptr<TableWidgetPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
