// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_GENERICDATAFADER_H
#define KO_QTTOOLKIT_WIDGET_GENERICDATAFADER_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/widget/Fader.h>

#include <memory>

namespace ko::qtToolkit::widget {

class GenericDataFaderPrivate;

/**
 * \brief A Fader over a floating-point range with a fixed number of decimals.
 *
 * The data range is mapped onto the slider's integer range by multiplying with the scale,
 * 10 to the power of the number of decimals: with 2 decimals and a data range of -1.5 to 1.5 the
 * slider runs from -150 to 150. Data values are truncated toward zero to that grid and clamped
 * to the range by the slider.
 *
 * The fader labels its range in small text: the maximum at the top right and the minimum at the
 * bottom right.
 *
 * The constructor does not set the slider's range: until one of the range setters runs,
 * QSlider's default range applies while the scale is already 10 (one decimal).
 *
 * The dynamic property "TestTag" is "GenericDataFader".
 */
class KO_QTTOOLKIT_EXPORT GenericDataFader : public Fader
{
    Q_OBJECT
    /// The fader's value in data units; see getData() and setData(). Notified by dataChanged().
    Q_PROPERTY(float GenericFaderData READ getData WRITE setData NOTIFY dataChanged)

public:
    /**
     * \brief A data fader with the range 0 to 10 and one decimal (not yet applied to the slider).
     * \param orientation Qt::Vertical or Qt::Horizontal.
     * \param parent the parent widget, which owns the fader; may be null.
     */
    explicit GenericDataFader(Qt::Orientation orientation, QWidget *parent = nullptr);

    /**
     * \brief A vertical data fader, as GenericDataFader(Qt::Vertical, parent): the constructor
     *        that forms made with Qt Designer call.
     */
    explicit GenericDataFader(QWidget *parent = nullptr);

    ~GenericDataFader() override;

    /// \brief The slider's value divided by the scale.
    float getData() const;

    /// \brief The lower end of the data range; 0 by default.
    float getMinimumData() const;

    /// \brief Sets the lower end of the data range and updates the slider's range; NaN is refused
    ///        with a warning, an infinite end saturates the slider's range.
    void setMinimumData(float minimum);

    /// \brief The upper end of the data range; 10 by default.
    float getMaximumData() const;

    /// \brief Sets the upper end of the data range and updates the slider's range; NaN is refused
    ///        with a warning, an infinite end saturates the slider's range.
    void setMaximumData(float maximum);

    /// \brief The number of decimals kept; 1 by default.
    unsigned int getNumberOfDecimals() const;

    /// \brief Sets the number of decimals kept and updates the scale and the slider's range.
    ///
    /// At most 17 decimals are kept, the digits a double holds; more count as 17.
    void setNumberOfDecimals(unsigned int decimals);

    /**
     * \brief Recomputes the scale (10 to the power of the number of decimals) and sets the
     *        slider's range to the data range times the scale, truncated toward zero.
     *
     * The slider's bounds saturate at half the int range (±1073741823), so that a data range
     * reaching to infinity, such as an attenuation of -inf to 0 dB, still paints.
     */
    void updateFaderRange();

    /**
     * \brief The data a double tap on the handle resets the fader to: defaultValue() divided by
     *        the scale.
     *
     * Until a default is set this is the slider's minimum divided by the scale, the lower end of
     * the data range on the slider's grid.
     */
    float defaultData() const;

    /**
     * \brief Sets the default value to \a data times the scale, truncated toward zero, as
     *        setData() maps data. Resetting on a double tap is switched on with
     *        setResetOnDoubleTapEnabled().
     *
     * The data is kept and mapped again whenever the number of decimals changes, so a default of
     * 2.5 stays 2.5 with any number of decimals. Like defaultValue(), it may lie outside the data
     * range and is clamped only when applied. NaN is refused with a warning.
     *
     * \warning Fader::setDefaultValue() sets the slider's default directly; the data given here
     * last replaces it again at the next change of the number of decimals.
     */
    void setDefaultData(float data);

public Q_SLOTS:
    /**
     * \brief Sets the slider to \a data times the scale, truncated toward zero and clamped by
     *        the slider to its range. dataChanged() follows only when the slider's value changes.
     */
    void setData(float data);

Q_SIGNALS:
    /// \brief Emitted with getData() whenever the slider's value changes.
    void dataChanged(float value);

protected:
    /// \brief Draws the range labels, then the slider over them.
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<GenericDataFaderPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
