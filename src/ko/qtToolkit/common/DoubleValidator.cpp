#include <ko/qtToolkit/common/DoubleValidator.h>

#include <algorithm>

namespace ko::qtToolkit::common {

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
    if (!ok)
        value = 0.0;
    value = std::min(value, top());
    value = std::max(value, bottom());
    input = QString::number(value, 'f', decimals());
}

} // namespace ko::qtToolkit::common
