// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_FULLTEXTTOOLTIP_P_H
#define KO_QTTOOLKIT_WIDGET_FULLTEXTTOOLTIP_P_H

#include <QObject>
#include <QString>

class QWidget;

namespace ko::qtToolkit::widget {

/**
 * \brief The tool tip of a widget that shortens its text: the full text while the text is cut.
 *
 * The tool tip is the widget's own only while this object set it. Any tool tip the application
 * sets takes over and is left alone; an application that clears its tool tip hands it back.
 * While the widget's own tool tip is up, a press and hold (Qt's tap-and-hold gesture) shows it,
 * for a touch screen has no hover.
 *
 * It watches the widget as an event filter, so that the widget's own event handling, and that
 * of classes derived from it, stays as it was.
 */
class FullTextToolTip : public QObject
{
public:
    /// \brief Watches \a widget, which must outlive this object.
    explicit FullTextToolTip(QWidget &widget);

    /// \brief Sets or clears the full-text tool tip; call whenever the shortened text is computed.
    void update(bool shortened, const QString &fullText);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setOwn(bool on);

    QWidget &widget;
    bool own = false;
    bool setting = false;
};

} // namespace ko::qtToolkit::widget

#endif
