#ifndef KO_QTTOOLKIT_WIDGET_FULLTEXTTOOLTIP_P_H
#define KO_QTTOOLKIT_WIDGET_FULLTEXTTOOLTIP_P_H

#include <QString>

class QEvent;
class QWidget;

namespace ko::qtToolkit::widget {

/**
 * \brief The tool tip of a widget that shortens its text: the full text while the text is cut.
 *
 * The tool tip is the widget's own only while this object set it. Any tool tip the application
 * sets takes over and is left alone; an application that clears its tool tip hands it back.
 * While the widget's own tool tip is up, a press and hold (Qt's tap-and-hold gesture) shows it,
 * for a touch screen has no hover.
 */
class FullTextToolTip
{
public:
    /// \brief Sets or clears the full-text tool tip of \a widget; call whenever the shortened text is computed.
    void update(QWidget &widget, bool shortened, const QString &fullText);

    /// \brief Call from the widget's event(); true when \a event was handled here.
    bool event(QWidget &widget, QEvent *event);

    /// \brief Whether the widget's tool tip is the full text set here.
    bool isShown() const { return own; }

private:
    void setOwn(QWidget &widget, bool on);

    bool own = false;
    bool setting = false;
};

} // namespace ko::qtToolkit::widget

#endif
