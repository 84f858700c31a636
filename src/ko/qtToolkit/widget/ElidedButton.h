// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_ELIDEDBUTTON_H
#define KO_QTTOOLKIT_WIDGET_ELIDEDBUTTON_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/widget/Button.h>

#include <memory>

namespace ko::qtToolkit::widget {

class ElidedButtonPrivate;

/**
 * \brief A focus-less push button whose caption is cut at the right to fit its width.
 *
 * text() always returns the full caption; only painting uses the shortened copy, measured
 * with the button's font against the style's contents rectangle less the icon width (whether
 * or not there is an icon) and 4 pixels. The caption is recomputed on show and on paint when
 * the width or the text changed; a font change alone does not trigger it.
 *
 * The button body is painted from the widget's basic state only (enabled, hover, palette):
 * a checked or pressed ElidedButton looks like a released one.
 *
 * While the caption is cut, the full text is the button's tool tip (and, as text() is the full
 * text, its accessible name); a press and hold on a touch screen shows that tool tip. The tool
 * tip goes when the caption fits again. A tool tip the application sets is never changed: the
 * button sets its own only while the application's is empty.
 */
class KO_QTTOOLKIT_EXPORT ElidedButton : public Button
{
public:
    /**
     * \brief A button without icon and text.
     * \param parent the owner of the button, or null
     */
    explicit ElidedButton(QWidget *parent = nullptr);

    /**
     * \brief A button captioned \a text.
     * \param text the full caption; text() returns it, painting shortens it.
     * \param parent the owner of the button, or null
     */
    explicit ElidedButton(const QString &text, QWidget *parent = nullptr);

    /**
     * \brief A button showing \a icon and \a text.
     * \param icon the button's icon; its width is set aside whether or not there is one.
     * \param text the full caption; text() returns it, painting shortens it.
     * \param parent the owner of the button, or null
     */
    ElidedButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);
    ~ElidedButton() override;

    /**
     * \brief Recomputes the painted caption when the width or the text changed since last time.
     */
    void updateElidedText();

protected:
    /// \brief Calls updateElidedText() on Show and Paint events, then handles \a e as
    ///        QPushButton does.
    bool event(QEvent *e) override;
    /// \brief Paints the button body from the basic state, then the shortened caption inside
    ///        the style's contents rectangle, 2 pixels in from either side.
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<ElidedButtonPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
