// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_ELIDEDLABEL_H
#define KO_QTTOOLKIT_WIDGET_ELIDEDLABEL_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QLabel>

#include <memory>

namespace ko::qtToolkit::widget {

class ElidedLabelPrivate;

/**
 * \brief A label that shortens the text it shows to its width, and keeps the full text.
 *
 * text() always returns the full text; only painting uses the shortened copy, measured with
 * the label's font against its width less 4 pixels. Once it has painted a non-empty text, the
 * label's minimum width is about one character and an ellipsis, so that layouts can shrink it
 * that far and no further. The shortened text is recomputed when the text, the width or the
 * elide mode changed; a font change alone does not trigger it.
 *
 * While the shown text is cut, the full text is the label's tool tip (and, as text() is the
 * full text, its accessible name); a press and hold on a touch screen shows that tool tip. The
 * tool tip goes when the text fits again. A tool tip the application sets is never changed:
 * the label sets its own only while the application's is empty.
 */
class KO_QTTOOLKIT_EXPORT ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /**
     * \brief An empty label.
     * \param parent the owner of the label, or null
     * \param f the window flags, as QLabel's
     */
    explicit ElidedLabel(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());

    /**
     * \brief A label showing \a text.
     * \param text the full text; text() returns it, painting shortens it.
     * \param parent the owner of the label, or null
     * \param f the window flags, as QLabel's
     */
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());
    ~ElidedLabel() override;

    /**
     * \brief Sets where the text is cut; Qt::ElideNone makes the label paint as a QLabel.
     *
     * The default is Qt::ElideRight.
     */
    void setElideMode(Qt::TextElideMode mode);

    /**
     * \brief Where the text is cut.
     */
    Qt::TextElideMode elideMode() const;

    /**
     * \brief Recomputes the shortened text and the minimum width when the text changed.
     *
     * Painting calls it; a caller only needs it to see the minimum width before the next paint.
     */
    void updateCache();

protected:
    /// \brief Paints as QLabel does, with the shortened text in place of the full one for the
    ///        length of the paint; with Qt::ElideNone, exactly as QLabel.
    void paintEvent(QPaintEvent *event) override;
    /// \brief Handles the resize as QLabel does, and has the next paint shorten the text anew.
    void resizeEvent(QResizeEvent *event) override;

private:
    std::unique_ptr<ElidedLabelPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
