// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_HEADERVIEWWIDGET_P_H
#define KO_QTTOOLKIT_WIDGET_HEADERVIEWWIDGET_P_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QHeaderView>
#include <QPointer>

#include <unordered_map>

namespace ko::qtToolkit::widget {

/**
 * \brief The header of a TableWidget: its sections carry widgets instead of painted titles.
 *
 * Each widget covers its section exactly and follows it when the header scrolls, when sections
 * are resized or moved, and when the header is shown. The header paints nothing of its own.
 * Internal to TableWidget.
 */
class KO_QTTOOLKIT_EXPORT HeaderViewWidget : public QHeaderView
{
public:
    /**
     * \brief Builds an empty header.
     * \param orientation Qt::Horizontal for column heads, Qt::Vertical for row heads.
     * \param parent the table, which owns the header; its TableWidget::headerSectionSize() gives
     *        the header's size hint.
     */
    explicit HeaderViewWidget(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~HeaderViewWidget() override;

    /**
     * \brief The parent table's TableWidget::headerSectionSize() for this orientation, so that the
     *        header is exactly as thick as the table says; QHeaderView's hint without such a parent.
     */
    QSize sizeHint() const override;

    /**
     * \brief The widget of logical section \a section, or null.
     */
    QWidget *sectionWidget(int section) const;

    /**
     * \brief Puts \a widget into logical section \a section, deleting the widget there before.
     *
     * The widget is placed at the next scroll, section resize or move, or show of the header. As
     * for any child added to a visible widget, a widget added while the header is visible shows
     * at the header's next show, or when the caller shows it.
     * \param section the logical section.
     * \param widget the new widget, re-parented to the header, which owns it from now on; null
     *        leaves the section empty.
     */
    void setSectionWidget(int section, QWidget *widget);

    /**
     * \brief Deletes all section widgets.
     */
    void clearSectionWidgets();

    /**
     * \brief Places every section widget over its section.
     */
    void repositionSectionWidgets();

protected:
    /// \brief Paints nothing: what shows are the section widgets and whatever lies behind.
    void paintEvent(QPaintEvent *event) override;
    /// \brief Places and shows the section widgets along with the header.
    void showEvent(QShowEvent *event) override;

private:
    void placeSectionWidget(int section);
    void repositionFromVisualIndex(int visualIndex);

    // A widget belongs to its section while the header is its parent; one that was deleted or
    // re-parented elsewhere no longer counts.
    std::unordered_map<int, QPointer<QWidget>> sectionWidgets;
};

} // namespace ko::qtToolkit::widget

#endif
