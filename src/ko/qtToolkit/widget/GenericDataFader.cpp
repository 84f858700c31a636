#include <ko/qtToolkit/widget/GenericDataFader.h>

#include <ko/qtToolkit/common/Numeric_p.h>

#include <QPainter>
#include <QVariant>

#include <cmath>

namespace ko::qtToolkit::widget {

namespace {

constexpr int labelWidth = 24;
constexpr int labelHeight = 12;
constexpr int labelFontPointSize = 8;

} // namespace

GenericDataFader::GenericDataFader(Qt::Orientation orientation, QWidget *parent)
    : Fader(orientation, parent)
{
    setProperty("TestTag", QStringLiteral("GenericDataFader"));
    connect(this, &QSlider::valueChanged, this, [this] { Q_EMIT dataChanged(getData()); });
}

float GenericDataFader::getData() const
{
    return static_cast<float>(value()) / m_scale;
}

void GenericDataFader::setData(float data)
{
    setValue(common::truncatedToInt(data * m_scale));
}

float GenericDataFader::getMinimumData() const
{
    return m_minimumData;
}

void GenericDataFader::setMinimumData(float minimum)
{
    m_minimumData = minimum;
    updateFaderRange();
}

float GenericDataFader::getMaximumData() const
{
    return m_maximumData;
}

void GenericDataFader::setMaximumData(float maximum)
{
    m_maximumData = maximum;
    updateFaderRange();
}

unsigned int GenericDataFader::getNumberOfDecimals() const
{
    return m_numberOfDecimals;
}

void GenericDataFader::setNumberOfDecimals(unsigned int decimals)
{
    m_numberOfDecimals = unsigned(common::boundedDecimals(decimals));
    updateFaderRange();
}

void GenericDataFader::updateFaderRange()
{
    m_scale = std::pow(10.0f, static_cast<float>(m_numberOfDecimals));
    setRange(common::truncatedToSliderBound(m_minimumData * m_scale),
             common::truncatedToSliderBound(m_maximumData * m_scale));
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
                         QStringLiteral("%1").arg(static_cast<double>(m_maximumData)));
        painter.drawText(QRect(width() - labelWidth, height() - labelHeight - 1, labelWidth, labelHeight),
                         Qt::AlignRight, QStringLiteral("%1").arg(static_cast<double>(m_minimumData)));
    }
    Fader::paintEvent(event);
}

} // namespace ko::qtToolkit::widget
