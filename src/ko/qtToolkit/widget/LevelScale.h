// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LEVELSCALE_H
#define KO_QTTOOLKIT_WIDGET_LEVELSCALE_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QWidget>

#include <memory>

namespace ko::qtToolkit::widget {

class LevelScalePrivate;

/**
 * \brief The decibel marks and labels of a level range, drawn beside a LevelMeter of the same
 *        length.
 *
 * The scale maps levels to pixels exactly as a meter does: the level range onto the meter's
 * progress bar range (minimumValue() to maximumValue(), QProgressBar's 0 to 100 by default),
 * then onto the length. A mark lies on the last pixel a meter lights for its level (on the
 * meter's frame for the minimum), so placed beside a meter with the same ranges, orientation,
 * length and position along it, every mark lines up with the meter's pixels.
 *
 * Major marks carry labels; their step (1, 2 or 5 times a power of ten) is the smallest whose
 * labels, centred on their marks, keep at least 2 pixels apart at the current length and font.
 * A label at an end of the scale is moved inward to stay inside the widget, and left out when it
 * would then crowd its neighbour. Minor marks divide the major step where they stay at least 4
 * pixels apart. Marks start at the edge facing the meter: the left edge of
 * a vertical scale and the top edge of a horizontal one, or the opposite edges when mirrored.
 * Marks and labels are drawn in the palette's WindowText colour with the widget's font, so a
 * style sheet's color and font rules apply.
 *
 * \code
 * auto *meter = new LevelMeter;
 * meter->setOrientation(Qt::Vertical);
 * auto *scale = new LevelScale;        // vertical, -60 to +15: the meter's defaults
 * auto *row = new QHBoxLayout;
 * row->setSpacing(0);
 * row->addWidget(meter);
 * row->addWidget(scale);               // same height and top as the meter
 * \endcode
 */
class KO_QTTOOLKIT_EXPORT LevelScale : public QWidget
{
    Q_OBJECT
    /// Whether the scale runs upwards or to the right; see orientation().
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    /// The lower end of the level range, read-only; see setLevelRange().
    Q_PROPERTY(float minimumLevel READ minimumLevel)
    /// The upper end of the level range, read-only; see setLevelRange().
    Q_PROPERTY(float maximumLevel READ maximumLevel)
    /// Whether the marks start at the right or bottom edge; see isMirrored().
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored)

public:
    /**
     * \brief A vertical scale from -60 to +15 over a bar range of 0 to 100.
     * \param parent the parent widget, which owns the scale; may be null.
     */
    explicit LevelScale(QWidget *parent = nullptr);
    ~LevelScale() override;

    /// \brief Whether the scale runs upwards (Qt::Vertical, the default) or to the right.
    Qt::Orientation orientation() const;
    /// \brief Sets the orientation; it should be the meter's.
    void setOrientation(Qt::Orientation orientation);

    /// \brief The lower end of the level range; -60 by default.
    float minimumLevel() const;
    /// \brief The upper end of the level range; +15 by default.
    float maximumLevel() const;

    /**
     * \brief Sets the level range, as LevelMeter::setLevelRange() does: ignored when
     *        \a minimum is greater than \a maximum; an end that is not finite is refused with a
     *        warning.
     */
    void setLevelRange(float minimum, float maximum);

    /// \brief The lower end of the meter's progress bar range; 0 by default.
    int minimumValue() const;
    /// \brief The upper end of the meter's progress bar range; 100 by default.
    int maximumValue() const;

    /// \brief Sets the progress bar range of the meter beside the scale; ignored when
    ///        \a minimum is not below \a maximum.
    void setValueRange(int minimum, int maximum);

    /// \brief Whether the marks start at the right (vertical) or bottom (horizontal) edge;
    ///        false by default.
    bool isMirrored() const;
    /// \brief Puts the marks at the right or bottom edge, for a scale before the meter.
    void setMirrored(bool mirrored);

    /**
     * \brief The row (vertical) or column (horizontal) of the scale where the mark of \a level
     *        lies, the level clamped to the range.
     */
    int markPosition(float level) const;

    /// \brief The step between labelled marks at the current length and font, in level units.
    double majorStep() const;

    /// \brief 200 pixels along the scale; across it, room for the marks and the widest label
    ///        (one line of text when horizontal), in the widget's font.
    QSize sizeHint() const override;
    /// \brief The thickness of sizeHint(), and 50 pixels along the scale.
    QSize minimumSizeHint() const override;

protected:
    /// \brief Draws the marks and labels for the current length and font.
    void paintEvent(QPaintEvent *event) override;
    /// \brief On a font change, tells the layout that the size hint changed with the font.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<LevelScalePrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
