// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/GenericDataFader.h>

#include <ko/qtToolkit/common/Numeric_p.h>

#include <QPainter>
#include <QVariant>

#include <cmath>
#include <optional>

namespace ko::qtToolkit::widget {

class GenericDataFaderPrivate
{
public:
    float minimumData = 0.0f;
    float maximumData = 10.0f;
    unsigned int numberOfDecimals = 1;
    float scale = 10.0f;
    // What setDefaultData() was given, mapped again when the scale changes.
    std::optional<float> defaultData;
};

namespace {

constexpr int labelWidth = 24;
constexpr int labelHeight = 12;
constexpr int labelFontPointSize = 8;

// A range end is an argument: NaN is refused, while an infinite end saturates the slider (an
// attenuation down to -inf dB).
bool isDataLimit(const char *function, float limit)
{
    if (!std::isnan(limit))
        return true;
    qWarning("GenericDataFader::%s: ignoring a limit that is not a number", function);
    return false;
}

} // namespace

GenericDataFader::GenericDataFader(Qt::Orientation orientation, QWidget *parent)
    : Fader(orientation, parent)
    , d(std::make_unique<GenericDataFaderPrivate>())
{
    setProperty("TestTag", QStringLiteral("GenericDataFader"));
    connect(this, &QSlider::valueChanged, this, [this] { Q_EMIT dataChanged(getData()); });
}

GenericDataFader::GenericDataFader(QWidget *parent)
    : GenericDataFader(Qt::Vertical, parent)
{
}

GenericDataFader::~GenericDataFader() = default;

float GenericDataFader::getData() const
{
    return static_cast<float>(value()) / d->scale;
}

void GenericDataFader::setData(float data)
{
    setValue(common::truncatedToInt(data * d->scale));
}

float GenericDataFader::getMinimumData() const
{
    return d->minimumData;
}

void GenericDataFader::setMinimumData(float minimum)
{
    if (!isDataLimit("setMinimumData", minimum))
        return;
    d->minimumData = minimum;
    updateFaderRange();
}

float GenericDataFader::getMaximumData() const
{
    return d->maximumData;
}

void GenericDataFader::setMaximumData(float maximum)
{
    if (!isDataLimit("setMaximumData", maximum))
        return;
    d->maximumData = maximum;
    updateFaderRange();
}

unsigned int GenericDataFader::getNumberOfDecimals() const
{
    return d->numberOfDecimals;
}

void GenericDataFader::setNumberOfDecimals(unsigned int decimals)
{
    d->numberOfDecimals = unsigned(common::boundedDecimals(decimals));
    updateFaderRange();
}

void GenericDataFader::updateFaderRange()
{
    const float scale = std::pow(10.0f, static_cast<float>(d->numberOfDecimals));
    const bool rescaled = scale != d->scale;
    d->scale = scale;
    setRange(common::truncatedToSliderBound(d->minimumData * d->scale),
             common::truncatedToSliderBound(d->maximumData * d->scale));
    if (rescaled && d->defaultData)
        setDefaultValue(common::truncatedToInt(*d->defaultData * d->scale));
}

float GenericDataFader::defaultData() const
{
    return static_cast<float>(defaultValue()) / d->scale;
}

void GenericDataFader::setDefaultData(float data)
{
    if (std::isnan(data)) {
        qWarning("GenericDataFader::setDefaultData: ignoring a default that is not a number");
        return;
    }
    d->defaultData = data;
    setDefaultValue(common::truncatedToInt(data * d->scale));
}

void GenericDataFader::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setFont(QFont(QStringLiteral("plain"), labelFontPointSize));
        painter.setPen(QPen(QBrush(palette().color(QPalette::Mid)), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        // On a fader narrower than the labels they start left of the widget; the text is
        // right-aligned, so what is cut off is the start of a long number.
        painter.drawText(QRect(width() - labelWidth, 0, labelWidth, labelHeight), Qt::AlignRight,
                         QStringLiteral("%1").arg(static_cast<double>(d->maximumData)));
        painter.drawText(QRect(width() - labelWidth, height() - labelHeight - 1, labelWidth, labelHeight),
                         Qt::AlignRight, QStringLiteral("%1").arg(static_cast<double>(d->minimumData)));
    }
    Fader::paintEvent(event);
}

} // namespace ko::qtToolkit::widget
