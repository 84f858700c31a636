// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_COMMON_DOUBLEVALIDATOR_H
#define KO_QTTOOLKIT_COMMON_DOUBLEVALIDATOR_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QDoubleValidator>

namespace ko::qtToolkit::common {

/**
 * \brief A QDoubleValidator for keypad entry: out-of-range input is Invalid and fixup() clamps.
 *
 * validate() reads the text with the validator's locale; fixup() always reads it with a full
 * stop as decimal point (QString::toDouble()), whatever the locale, and writes it back the same
 * way. With a locale whose decimal point is a comma, fixup() therefore cannot parse "1,5" and
 * turns it into 0 clamped to the range.
 */
class KO_QTTOOLKIT_EXPORT DoubleValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    /**
     * \brief A validator with QDoubleValidator's defaults: any value, 1000 decimals.
     * \param parent the owner of the validator, or null
     */
    explicit DoubleValidator(QObject *parent = nullptr);

    /**
     * \brief A validator for the range [\a bottom, \a top] with at most \a decimals digits
     *        after the decimal point, as QDoubleValidator's.
     * \param bottom the lowest acceptable value
     * \param top the highest acceptable value
     * \param decimals the most digits allowed after the decimal point
     * \param parent the owner of the validator, or null
     */
    DoubleValidator(double bottom, double top, int decimals, QObject *parent = nullptr);

    ~DoubleValidator() override;

    /**
     * \brief Checks \a input; \a pos is neither read nor changed.
     *
     * \return Intermediate for an empty text and, when bottom() is negative, for a lone "-";
     *         Invalid for more than decimals() characters after the locale's decimal point, for
     *         text the locale cannot read as a number, and for any value outside
     *         [bottom(), top()]; Acceptable otherwise. Out-of-range input is never Intermediate,
     *         so a keypad cannot type a value that would only become valid later.
     */
    State validate(QString &input, int &pos) const override;

    /**
     * \brief Replaces \a input by its value clamped to [bottom(), top()], in fixed-point notation
     *        with exactly decimals() digits after the point.
     *
     * The text is read with a full stop as decimal point; text that is not a finite number
     * ("nan" and "inf" among them) counts as 0. When bottom() is greater than top(), bottom()
     * wins. When rounding to the decimals would carry the value out of the range (0.004 with two
     * decimals would show as 0.00 below a bottom of 0.004), the nearest value with those decimals
     * inside the range is written instead (0.01). At most 17 decimals are written, the digits a
     * double holds.
     */
    void fixup(QString &input) const override;
};

} // namespace ko::qtToolkit::common

#endif
