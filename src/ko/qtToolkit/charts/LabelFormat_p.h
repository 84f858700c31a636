// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_LABELFORMAT_P_H
#define KO_QTTOOLKIT_CHARTS_LABELFORMAT_P_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QByteArray>
#include <QString>

namespace ko::qtToolkit::charts {

/**
 * \brief A printf-style label format, checked so that QString::asprintf can be given one value
 *        with it safely.
 *
 * A valid format holds literal text, "%%" and at most one conversion, with optional flags
 * (-, +, space, #, 0, '), and a width and a precision of up to two digits each:
 * - a floating-point conversion (e, E, f, F, g, G, a or A, optionally with l) shows the value;
 * - an integer conversion (d, i, u, o, x or X, optionally with l or ll) shows the value rounded
 *   to the nearest whole number (halves away from zero) within 64 bits.
 *
 * Anything else (for example "%s", "%n", "%*f", "%Lf", two conversions, or a width of a
 * thousand characters) is invalid: it would read arguments that are not there, or take far
 * longer to format than any axis can show.
 *
 * The common conversions "%.<precision>f" (precision up to 9), "%f", "%d" and "%i", without flags
 * and width and with any literal text around them, are written digit by digit instead of through
 * asprintf, giving the same text; every other format and value (NaN, infinities, values too large
 * for 64-bit digits) goes through asprintf.
 */
class KO_QTTOOLKIT_EXPORT LabelFormat
{
public:
    /// Checks \a format, kept as UTF-8 bytes. Like asprintf, it stops at the first NUL byte.
    explicit LabelFormat(const QByteArray &format);

    /// Whether the format can be applied.
    bool isValid() const;

    /// The format as asprintf is given it: an integer conversion reads a 64-bit integer, whatever
    /// length the format asked for. Empty when the format is invalid.
    QByteArray format() const;

    /// \a value formatted; a null string when the format is invalid.
    QString apply(double value) const;

    /// Sets \a label to apply(\a value), writing into its buffer where that is not shared and
    /// large enough, so that relabelling an axis allocates nothing.
    void applyTo(double value, QString &label) const;

    /// \a value formatted with QString::asprintf, never with the digit-by-digit writer: what
    /// apply() gives, only slower. The tests compare the two.
    QString applyThroughPrintf(double value) const;

    /// Whether apply() writes the digits of this format itself (for some values at least).
    bool hasFastPath() const;

private:
    enum class Conversion { None, Floating, Integer, Invalid };
    // What apply() can write without asprintf: "%.<precision>f" (Fixed) or "%d" (Integer).
    enum class FastPath { None, Fixed, Integer };

    QByteArray m_format;
    Conversion m_conversion = Conversion::Invalid;
    FastPath m_fastPath = FastPath::None;
    int m_precision = 0;
    // The literal text before and after the conversion, as asprintf shows it.
    QString m_prefix;
    QString m_suffix;
};

} // namespace ko::qtToolkit::charts

#endif
