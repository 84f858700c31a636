// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/IntValidator.h>

#include <algorithm>

namespace ko::qtToolkit::common {

IntValidator::IntValidator(QObject *parent)
    : QIntValidator(parent)
{
}

IntValidator::IntValidator(int bottom, int top, QObject *parent)
    : QIntValidator(bottom, top, parent)
{
}

IntValidator::~IntValidator() = default;

void IntValidator::fixup(QString &input) const
{
    bool ok = false;
    qlonglong value = input.toLongLong(&ok, 10);
    if (!ok)
        value = 0;
    // Clamped in 64 bits so that values beyond the int range still end at a bound.
    value = std::min<qlonglong>(value, top());
    value = std::max<qlonglong>(value, bottom());
    input = QString::number(value, 10);
}

} // namespace ko::qtToolkit::common
