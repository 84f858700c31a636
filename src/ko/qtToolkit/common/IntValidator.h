// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_COMMON_INTVALIDATOR_H
#define KO_QTTOOLKIT_COMMON_INTVALIDATOR_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QIntValidator>

namespace ko::qtToolkit::common {

/**
 * \brief A QIntValidator whose fixup() repairs any text into the range.
 *
 * Validation is QIntValidator's. fixup() turns unparsable text into 0 and clamps every value to
 * [bottom(), top()], so a field that went through fixup() always holds a number in range.
 */
class KO_QTTOOLKIT_EXPORT IntValidator : public QIntValidator
{
    Q_OBJECT

public:
    /**
     * \brief A validator accepting any int, as QIntValidator's.
     * \param parent the owner of the validator, or null
     */
    explicit IntValidator(QObject *parent = nullptr);

    /**
     * \brief A validator for the range [\a bottom, \a top], as QIntValidator's.
     * \param bottom the lowest acceptable value
     * \param top the highest acceptable value
     * \param parent the owner of the validator, or null
     */
    IntValidator(int bottom, int top, QObject *parent = nullptr);

    ~IntValidator() override;

    /**
     * \brief Replaces \a input by its value clamped to [bottom(), top()].
     *
     * The text is read as a 64-bit decimal integer; text that is not one counts as 0. When
     * bottom() is greater than top(), bottom() wins.
     */
    void fixup(QString &input) const override;
};

} // namespace ko::qtToolkit::common

#endif
