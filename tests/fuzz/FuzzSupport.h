// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTS_FUZZ_FUZZSUPPORT_H
#define KO_QTTOOLKIT_TESTS_FUZZ_FUZZSUPPORT_H

// What every fuzz target shares: the offscreen application, a message handler that turns
// unexpected warnings into failures, the check macro, and decoders for the values that find
// defects most often (the ends of each type, NaN, infinities, zero of both signs).

#include <fuzzer/FuzzedDataProvider.h>

#include <QApplication>
#include <QByteArray>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <vector>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <limits>

namespace ko::qtToolkit::fuzz {

/// How far from zero a data fader's slider bounds reach: half the int range, so that no two are
/// 2^31 apart. Data beyond it times the scale saturates there.
constexpr double sliderLimit = 1073741823.0;

/// A broken rule: print it and abort, so that libFuzzer keeps the input as a crash.
[[noreturn]] inline void fail(const char *file, int line, const char *condition, const QString &detail)
{
    std::fprintf(stderr, "%s:%d: rule broken: %s\n    %s\n", file, line, condition,
                 detail.toLocal8Bit().constData());
    std::fflush(stderr);
    std::abort();
}

// clang-format off
#define KO_FUZZ_CHECK(condition, detail) \
    do { if (!(condition)) ::ko::qtToolkit::fuzz::fail(__FILE__, __LINE__, #condition, (detail)); } while (false)
// clang-format on

/// Whether the operations of an input are to be listed on stderr (KO_FUZZ_TRACE set), to turn a
/// crashing input into a reproducer in code.
inline bool tracing()
{
    static const bool on = qEnvironmentVariableIsSet("KO_FUZZ_TRACE");
    return on;
}

// clang-format off
#define KO_FUZZ_TRACE(...) \
    do { if (::ko::qtToolkit::fuzz::tracing()) std::fprintf(stderr, __VA_ARGS__); } while (false)
// clang-format on

/// Warnings a target expects: the library reports bad arguments this way. Any other warning or
/// critical message (from Qt, about something the library handed it) fails the input.
inline QStringList &expectedWarnings()
{
    static QStringList prefixes;
    return prefixes;
}

inline void messageHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    if (type == QtWarningMsg) {
        for (const QString &prefix : expectedWarnings()) {
            if (message.startsWith(prefix))
                return;
        }
    }
    fail(__FILE__, __LINE__, "no unexpected message", QStringLiteral("message: ") + message);
}

/// Installs the message handler with the warnings that \a prefixes begin.
inline void expectWarnings(std::initializer_list<const char *> prefixes)
{
    // The offscreen platform's own remark whenever a window is shown.
    expectedWarnings().append(QStringLiteral("This plugin does not support propagateSizeHints()"));
    for (const char *prefix : prefixes)
        expectedWarnings().append(QString::fromUtf8(prefix));
    qInstallMessageHandler(messageHandler);
}

/// The application every widget needs, on the offscreen platform, made once for the process.
inline void createApplication()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static QApplication application(argc, argv);
}

/// Runs the events an input posted (layouts, updates), and deletes what was deleted later, so
/// that nothing of one input lives on into the next.
inline void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

inline double consumeDouble(FuzzedDataProvider &data)
{
    static constexpr double special[] = {
        0.0, -0.0, 1.0, -1.0, 0.5, 2.0, 10.0, 20.0, 100.0, 1000.0, -1000.0, 20000.0, 1e-3, 1e-10,
        1e10, 1e15, 1e300, -1e300, DBL_MAX, -DBL_MAX, DBL_MIN, -DBL_MIN, 4.9406564584124654e-324,
        std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(), 2147483647.0, -2147483648.0, 2147483648.0,
        4294967296.0, 9.2233720368547758e18, 3.4028234663852886e38, 0.1, 0.01, 0.005, 1.005};
    switch (data.ConsumeIntegralInRange<int>(0, 4)) {
    case 0:
        return data.PickValueInArray(special);
    case 1:
        return data.ConsumeFloatingPointInRange<double>(-1000.0, 1000.0);
    case 2:
        return data.ConsumeIntegralInRange<int>(-400, 400) / 4.0;
    case 3:
        return data.ConsumeFloatingPoint<double>();
    default: {
        // Any bit pattern, NaNs with payloads and subnormals included.
        const auto bits = data.ConsumeIntegral<std::uint64_t>();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    }
}

inline float consumeFloat(FuzzedDataProvider &data)
{
    if (data.ConsumeBool()) {
        const auto bits = data.ConsumeIntegral<std::uint32_t>();
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    return static_cast<float>(consumeDouble(data));
}

inline int consumeInt(FuzzedDataProvider &data)
{
    static constexpr int special[] = {0, 1, -1, 2, 10, 100, 1000, -1000, INT_MAX, INT_MIN, INT_MAX - 1,
                                      INT_MIN + 1, INT_MAX / 2, INT_MIN / 2, 1 << 30, -(1 << 30)};
    switch (data.ConsumeIntegralInRange<int>(0, 2)) {
    case 0:
        return data.PickValueInArray(special);
    case 1:
        return data.ConsumeIntegralInRange<int>(-1000, 1000);
    default:
        return data.ConsumeIntegral<int>();
    }
}

/// A short text: raw UTF-8, or characters from \a alphabet (numbers, signs, points, exponent
/// letters and the like), which reach more of a parser than random bytes do.
inline QString consumeText(FuzzedDataProvider &data, const char *alphabet, std::size_t maxLength = 24)
{
    if (data.ConsumeBool())
        return QString::fromUtf8(QByteArray::fromStdString(data.ConsumeRandomLengthString(maxLength)));
    const std::size_t alphabetLength = std::strlen(alphabet);
    const std::size_t length = data.ConsumeIntegralInRange<std::size_t>(0, maxLength);
    QString text;
    for (std::size_t i = 0; i < length && data.remaining_bytes() > 0; ++i)
        text += QLatin1Char(alphabet[data.ConsumeIntegralInRange<std::size_t>(0, alphabetLength - 1)]);
    return text;
}

/// \a value for a failure message, with all digits.
inline QString show(double value)
{
    return QString::number(value, 'g', 17);
}

/// Deletes what \a pool still holds that no parent owns: what the application kept.
template<typename Widget>
void deleteUnowned(const std::vector<QPointer<Widget>> &pool)
{
    for (const QPointer<Widget> &widget : pool) {
        if (widget && !widget->parent())
            delete widget.data();
    }
}

/// Runs \a step, then \a check, for up to \a maximum operations while input is left; then lets
/// deferred deletions and layouts happen and checks once more.
template<typename Step, typename Check>
void runOperations(FuzzedDataProvider &data, int maximum, Step step, Check check)
{
    const int operations = data.ConsumeIntegralInRange<int>(1, maximum);
    for (int i = 0; i < operations && data.remaining_bytes() > 0; ++i) {
        step();
        check();
    }
    settle();
    check();
}

} // namespace ko::qtToolkit::fuzz

#endif
