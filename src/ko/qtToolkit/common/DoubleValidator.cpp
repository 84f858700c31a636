// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/DoubleValidator.h>

#include <ko/qtToolkit/common/Numeric_p.h>

#include <algorithm>
#include <cmath>

namespace ko::qtToolkit::common {

DoubleValidator::DoubleValidator(QObject *parent)
    : QDoubleValidator(parent)
{
}

DoubleValidator::DoubleValidator(double bottom, double top, int decimals, QObject *parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
}

DoubleValidator::~DoubleValidator() = default;

QValidator::State DoubleValidator::validate(QString &input, int &) const
{
    if (input.isEmpty())
        return Intermediate;
    // Written so that a NaN bottom counts as negative.
    if (!(bottom() >= 0.0) && input == QLatin1String("-"))
        return Intermediate;

    const QLocale locale = this->locale();
    const int point = input.indexOf(locale.decimalPoint());
    if (point >= 0 && input.size() - point - 1 > decimals())
        return Invalid;

    bool ok = false;
    const double value = locale.toDouble(input, &ok);
    if (!ok)
        return Invalid;
    if (!(value >= bottom()) || !(value <= top()))
        return Invalid;
    return Acceptable;
}

void DoubleValidator::fixup(QString &input) const
{
    bool ok = false;
    double value = input.toDouble(&ok);
    if (!ok || !std::isfinite(value))
        value = 0.0;
    value = std::min(value, top());
    value = std::max(value, bottom());
    const int places = boundedDecimals(decimals());
    input = QString::number(value, 'f', places);
    // Rounding to the decimals can carry a clamped value back out of the range (0.004 shown with
    // two decimals is 0.00): the nearest value with those decimals inside the range is taken
    // instead, when there is one.
    const double shown = input.toDouble();
    if (shown >= bottom() && shown <= top())
        return;
    const double scale = std::pow(10.0, places);
    const double inside = shown < bottom() ? std::ceil(bottom() * scale) / scale : std::floor(top() * scale) / scale;
    const QString insideText = QString::number(inside, 'f', places);
    const double insideShown = insideText.toDouble();
    if (insideShown >= bottom() && insideShown <= top())
        input = insideText;
}

} // namespace ko::qtToolkit::common
