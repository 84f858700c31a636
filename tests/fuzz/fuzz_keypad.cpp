// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Key sequences on a keypad editing a dynamic entry, with any validator range, fader decimals and
// keys (buttons, a hardware keyboard, keys the keypad does not know). Each Enter is committed as
// the entry commits an accepted keypad. Rules: the display never shows NaN or an infinity, the
// fader's value stays in its range, whatever the fader writes into the display is its value with
// its decimals, and the entry commits only values inside its validator's range.

#include "FuzzSupport.h"

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>

using namespace ko::qtToolkit;
using fuzz::show;

namespace {

constexpr int knownKeys[] = {Qt::Key_0,      Qt::Key_1,         Qt::Key_2,      Qt::Key_3,     Qt::Key_4,
                             Qt::Key_5,      Qt::Key_6,         Qt::Key_7,      Qt::Key_8,     Qt::Key_9,
                             Qt::Key_Comma,  Qt::Key_Period,    Qt::Key_Minus,  Qt::Key_K,     Qt::Key_Backspace,
                             Qt::Key_Delete, Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Tab,
                             Qt::Key_Plus,   Qt::Key_E,         Qt::Key_Space};

bool showsNumber(const QString &text)
{
    return !text.contains(QLatin1String("nan"), Qt::CaseInsensitive)
           && !text.contains(QLatin1String("inf"), Qt::CaseInsensitive);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::createApplication();
    // A validator's NaN bottom or top reaches the keypad's data fader, which refuses it.
    fuzz::expectWarnings({"GenericDataFader::setMinimumData: ignoring", "GenericDataFader::setMaximumData: ignoring"});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);

    // An infinite bound is committed as "inf" by design; the keypad is to show only what it makes.
    const auto finite = [](double bound) { return std::isinf(bound) ? std::copysign(1e6, bound) : bound; };
    const double bottom = finite(fuzz::consumeDouble(data));
    const double top = finite(data.ConsumeBool() ? bottom + std::abs(fuzz::consumeDouble(data)) : fuzz::consumeDouble(data));
    const int validatorDecimals = data.ConsumeIntegralInRange<int>(0, 6);
    common::DoubleValidator validator(bottom, top, validatorDecimals, nullptr);
    const QString settings = QStringLiteral(" (range %1 to %2, %3 decimals)")
                                 .arg(show(bottom), show(top))
                                 .arg(validatorDecimals);

    widget::TextEntry entry;
    entry.setValidator(&validator);
    entry.setText(fuzz::consumeText(data, "0123456789-.", 12));
    widget::Keypad keypad;
    if (data.ConsumeBool())
        keypad.show();
    auto *fader = keypad.findChild<widget::GenericDataFader *>();
    KO_FUZZ_CHECK(fader, QStringLiteral("the keypad has a fader"));
    if (data.ConsumeBool())
        keypad.setNumberOfDecimals(data.ConsumeBool() ? data.ConsumeIntegralInRange<unsigned>(0, 8)
                                                      : data.ConsumeIntegral<unsigned>());
    keypad.setDynamicWidget(&entry);

    // What the fader writes into the display, and the accepted values to commit.
    bool accepted = false;
    QObject::connect(&keypad, &widget::Keypad::valueUpdated, &keypad, [&] {
        const QString text = keypad.text();
        KO_FUZZ_CHECK(showsNumber(text), QStringLiteral("the fader wrote ") + text + settings);
        // Beyond the digits a float has, the text is only checked for being a number.
        const unsigned decimals = fader->getNumberOfDecimals();
        if (decimals <= 12) {
            KO_FUZZ_CHECK(text == QString::number(fader->getData(), 'f', int(decimals)),
                          QStringLiteral("the fader wrote ") + text + QStringLiteral(" for ") + show(fader->getData()));
        }
    });
    QObject::connect(&keypad, &widget::Keypad::accepted, &keypad, [&] { accepted = true; });

    const QList<QPushButton *> buttons = keypad.findChildren<QPushButton *>();
    const int keys = data.ConsumeIntegralInRange<int>(0, 64);
    for (int i = 0; i < keys && data.remaining_bytes() > 0; ++i) {
        switch (data.ConsumeIntegralInRange<int>(0, 9)) {
        case 0:
            // A key the keypad does not know, or one of its own.
            keypad.setNumberOfDecimals(data.ConsumeIntegralInRange<unsigned>(0, 8));
            break;
        case 1:
            if (!buttons.isEmpty())
                buttons.at(data.ConsumeIntegralInRange<int>(0, buttons.size() - 1))->click();
            break;
        case 2: {
            QKeyEvent press(QEvent::KeyPress, data.ConsumeIntegral<int>(), Qt::NoModifier);
            QCoreApplication::sendEvent(&keypad, &press);
            break;
        }
        case 3:
            keypad.setVisible(!keypad.isVisible()); // showing starts a new number
            break;
        default: {
            QKeyEvent press(QEvent::KeyPress, data.PickValueInArray(knownKeys), Qt::NoModifier);
            QCoreApplication::sendEvent(&keypad, &press);
            break;
        }
        }
        const QString display = keypad.text();
        KO_FUZZ_CHECK(showsNumber(display), QStringLiteral("the display shows ") + display + settings);
        // The fader's data range, where its integer range can hold it.
        const float value = fader->getData();
        KO_FUZZ_CHECK(!std::isnan(value), QStringLiteral("fader value ") + show(value) + settings);
        const double low = fader->getMinimumData();
        const double high = fader->getMaximumData();
        const double scale = std::pow(10.0, double(fader->getNumberOfDecimals()));
        if (low <= high && std::abs(low * scale) <= fuzz::sliderLimit && std::abs(high * scale) <= fuzz::sliderLimit) {
            // The ends are truncated toward zero to whole units of the last decimal.
            const double slack = 1.0 / scale + 1e-6 * std::max({1.0, std::abs(low), std::abs(high)});
            KO_FUZZ_CHECK(value >= low - slack && value <= high + slack,
                          QStringLiteral("fader value ") + show(value) + QStringLiteral(" outside ") + show(low)
                              + QStringLiteral(" to ") + show(high));
        }
        if (accepted) {
            // As an entry commits an accepted keypad.
            accepted = false;
            entry.setText(display);
            const QString committed = entry.text();
            bool ok = false;
            const double number = committed.toDouble(&ok);
            KO_FUZZ_CHECK(ok, QStringLiteral("committed ") + committed + QStringLiteral(" for ") + display + settings);
            const double b = validator.bottom();
            const double t = validator.top();
            if (std::isfinite(b) && std::isfinite(t) && b <= t && std::abs(b) < 1e9 && std::abs(t) < 1e9
                && std::ceil(b * std::pow(10.0, validatorDecimals)) <= std::floor(t * std::pow(10.0, validatorDecimals))) {
                KO_FUZZ_CHECK(number >= b && number <= t,
                              QStringLiteral("committed ") + committed + QStringLiteral(" for ") + display + settings);
            }
            keypad.setDynamicWidget(&entry);
        }
    }
    return 0;
}
