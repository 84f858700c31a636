// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// validate and fixup of both validators, with any range, decimals, locale and text, and the text
// entry that commits through fixup. Rules: fixup's result parses, is never NaN, lies in the range
// (where the range holds a number with that many decimals), has exactly that many decimals, is
// accepted by validate and left alone by a second fixup; validate accepts only parsable, in-range
// text with few enough decimals and changes neither text nor position; an entry commits what
// fixup makes of its text.

#include "FuzzSupport.h"

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/common/IntValidator.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <QLocale>

using namespace ko::qtToolkit;
using fuzz::show;

namespace {

constexpr char numberAlphabet[] = "0123456789-+.,eE infaINFA\xb7'";

QLocale consumeLocale(FuzzedDataProvider &data)
{
    switch (data.ConsumeIntegralInRange<int>(0, 5)) {
    case 0:
        return QLocale::c();
    case 1:
        return QLocale(QLocale::German, QLocale::Germany); // comma point, full-stop groups
    case 2:
        return QLocale(QLocale::English, QLocale::UnitedStates); // comma groups
    case 3:
        return QLocale(QLocale::French, QLocale::France); // narrow no-break space groups
    case 4:
        return QLocale(QLocale::Arabic, QLocale::Egypt); // other digits and point
    default:
        return QLocale(QLocale::German, QLocale::Switzerland); // apostrophe groups
    }
}

// Digits after the point in fixup's fixed-point text, -1 without a point.
int decimalsOf(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    return point < 0 ? -1 : text.size() - point - 1;
}

// Whether [bottom, top] holds a number with \a decimals decimals, when that can be told exactly
// in doubles; false when it cannot.
// Fixing up a fixed-up text again gives the same value. The sign of a zero may go: a value that
// rounds to zero from below is written "-0", as QString::number writes it, and -0 itself as "0".
bool stableFixup(const QValidator &validator, const QString &fixed)
{
    QString again = fixed;
    validator.fixup(again);
    if (again == fixed)
        return true;
    bool ok = false;
    bool okAgain = false;
    const double value = fixed.toDouble(&ok);
    const double valueAgain = again.toDouble(&okAgain);
    return ok && okAgain && value == 0.0 && valueAgain == 0.0;
}

bool holdsDecimalNumber(double bottom, double top, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    const double low = bottom * scale;
    const double high = top * scale;
    if (!(std::abs(low) < 1e15 && std::abs(high) < 1e15))
        return false;
    return std::ceil(low) <= std::floor(high);
}

void checkDoubleValidator(FuzzedDataProvider &data, const QString &input)
{
    const double bottom = fuzz::consumeDouble(data);
    const double top = data.ConsumeBool() ? bottom + std::abs(fuzz::consumeDouble(data)) : fuzz::consumeDouble(data);
    const int decimals = data.ConsumeBool() ? data.ConsumeIntegralInRange<int>(0, 6) : fuzz::consumeInt(data);
    common::DoubleValidator validator(bottom, top, decimals, nullptr);
    const QLocale locale = consumeLocale(data);
    validator.setLocale(locale);
    const QString settings = QStringLiteral(" (range %1 to %2, %3 decimals, locale %4)")
                                 .arg(show(validator.bottom()), show(validator.top()))
                                 .arg(validator.decimals())
                                 .arg(locale.name());

    // validate
    QString text = input;
    const int position = data.ConsumeIntegralInRange<int>(-1, 30);
    int pos = position;
    const QValidator::State state = validator.validate(text, pos);
    KO_FUZZ_CHECK(text == input && pos == position, QStringLiteral("validate changed ") + input + settings);
    if (input.isEmpty())
        KO_FUZZ_CHECK(state == QValidator::Intermediate, QStringLiteral("the empty text") + settings);
    if (state == QValidator::Acceptable) {
        bool ok = false;
        const double value = locale.toDouble(input, &ok);
        KO_FUZZ_CHECK(ok && value >= validator.bottom() && value <= validator.top(),
                      QStringLiteral("accepted ") + input + settings);
        const int point = input.indexOf(locale.decimalPoint());
        if (point >= 0 && validator.decimals() >= 0) {
            KO_FUZZ_CHECK(input.size() - point - 1 <= validator.decimals(),
                          QStringLiteral("accepted the decimals of ") + input + settings);
        }
    }

    // fixup
    QString fixed = input;
    validator.fixup(fixed);
    KO_FUZZ_CHECK(!fixed.contains(QLatin1String("nan"), Qt::CaseInsensitive),
                  QStringLiteral("fixup of ") + input + QStringLiteral(" gave ") + fixed + settings);
    const double b = validator.bottom();
    const double t = validator.top();
    const int d = validator.decimals();
    if (std::isfinite(b) && std::isfinite(t) && b <= t && d >= 0 && d <= 15 && holdsDecimalNumber(b, t, d)) {
        bool ok = false;
        const double value = fixed.toDouble(&ok);
        KO_FUZZ_CHECK(ok && value >= b && value <= t,
                      QStringLiteral("fixup of ") + input + QStringLiteral(" gave ") + fixed + settings);
        KO_FUZZ_CHECK(decimalsOf(fixed) == (d == 0 ? -1 : d),
                      QStringLiteral("fixup of ") + input + QStringLiteral(" gave ") + fixed + settings);
        KO_FUZZ_CHECK(stableFixup(validator, fixed), QStringLiteral("fixup of ") + fixed + QStringLiteral(" not stable") + settings);
        if (locale == QLocale::c()) {
            int p = 0;
            KO_FUZZ_CHECK(validator.validate(fixed, p) == QValidator::Acceptable,
                          QStringLiteral("refused its own fixup ") + fixed + settings);
        }
    }

    // An entry commits what fixup makes of its text, suffix or not.
    widget::TextEntry entry;
    entry.setValidator(&validator);
    entry.setNumeric(data.ConsumeBool());
    if (data.ConsumeBool())
        entry.setSuffix(QStringLiteral(" dB"));
    entry.setText(input);
    KO_FUZZ_CHECK(entry.text() == fixed,
                  QStringLiteral("entry committed ") + entry.text() + QStringLiteral(" for ") + input + settings);
}

void checkIntValidator(FuzzedDataProvider &data, const QString &input)
{
    const int bottom = fuzz::consumeInt(data);
    const int top = fuzz::consumeInt(data);
    common::IntValidator validator(bottom, top, nullptr);
    const QString settings = QStringLiteral(" (range %1 to %2)").arg(bottom).arg(top);

    QString fixed = input;
    validator.fixup(fixed);
    bool ok = false;
    const qlonglong value = fixed.toLongLong(&ok);
    KO_FUZZ_CHECK(ok, QStringLiteral("fixup of ") + input + QStringLiteral(" gave ") + fixed + settings);
    if (bottom <= top) {
        KO_FUZZ_CHECK(value >= bottom && value <= top,
                      QStringLiteral("fixup of ") + input + QStringLiteral(" gave ") + fixed + settings);
        bool parsed = false;
        const qlonglong original = input.toLongLong(&parsed);
        if (parsed && original >= bottom && original <= top)
            KO_FUZZ_CHECK(value == original, QStringLiteral("fixup changed ") + input + settings);
        int p = 0;
        KO_FUZZ_CHECK(validator.validate(fixed, p) == QValidator::Acceptable,
                      QStringLiteral("refused its own fixup ") + fixed + settings);
    }
    KO_FUZZ_CHECK(stableFixup(validator, fixed), QStringLiteral("fixup of ") + fixed + QStringLiteral(" not stable") + settings);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::createApplication();
    fuzz::expectWarnings({});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QString input = fuzz::consumeText(data, numberAlphabet);
    if (data.ConsumeBool())
        checkIntValidator(data, input);
    else
        checkDoubleValidator(data, input);

    // The entry's own validator: -1000 to 1000 with two decimals.
    widget::TextEntry entry;
    entry.setText(input);
    bool ok = false;
    const double value = entry.text().toDouble(&ok);
    KO_FUZZ_CHECK(ok && value >= -1000.0 && value <= 1000.0 && decimalsOf(entry.text()) == 2,
                  QStringLiteral("default entry committed ") + entry.text() + QStringLiteral(" for ") + input);
    return 0;
}
