// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/LevelMeter.h>

#include <QAccessibleWidget>
#include <QLatin1String>

#include <cmath>

// Accessible interfaces for the widgets whose values Qt's own interfaces would report wrongly:
// a data fader holds its data as a scaled integer, and a level meter's progress-bar value is a
// mapping of its level. Qt asks the factory for the most derived class first, so these take
// precedence over Qt's slider and progress-bar interfaces. The factory is installed when the
// library is loaded and removed when it is unloaded.

#if QT_CONFIG(accessibility)

namespace ko::qtToolkit::widget {

namespace {

class FaderAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit FaderAccessible(Fader *fader)
        : QAccessibleWidget(fader, QAccessible::Slider)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Value)
            return QString::number(fader()->value());
        return QAccessibleWidget::text(t);
    }

    QVariant currentValue() const override { return fader()->value(); }
    void setCurrentValue(const QVariant &value) override { fader()->setValue(value.toInt()); }
    QVariant maximumValue() const override { return fader()->maximum(); }
    QVariant minimumValue() const override { return fader()->minimum(); }
    QVariant minimumStepSize() const override { return fader()->singleStep(); }

protected:
    Fader *fader() const { return static_cast<Fader *>(widget()); }
};

class GenericDataFaderAccessible : public FaderAccessible
{
public:
    explicit GenericDataFaderAccessible(GenericDataFader *fader)
        : FaderAccessible(fader)
    {
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Value)
            return format(dataFader()->getData());
        return FaderAccessible::text(t);
    }

    // Values go through the same decimals as the text, so that a float such as 0.1f reads 0.1.
    QVariant currentValue() const override { return format(dataFader()->getData()).toDouble(); }
    void setCurrentValue(const QVariant &value) override { dataFader()->setData(float(value.toDouble())); }
    QVariant maximumValue() const override { return format(dataFader()->getMaximumData()).toDouble(); }
    QVariant minimumValue() const override { return format(dataFader()->getMinimumData()).toDouble(); }
    QVariant minimumStepSize() const override
    {
        return std::pow(10.0, -double(dataFader()->getNumberOfDecimals()));
    }

private:
    GenericDataFader *dataFader() const { return static_cast<GenericDataFader *>(widget()); }

    QString format(float data) const
    {
        return QString::number(double(data), 'f', int(dataFader()->getNumberOfDecimals()));
    }
};

class LevelMeterAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit LevelMeterAccessible(LevelMeter *meter)
        : QAccessibleWidget(meter, QAccessible::ProgressBar)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text t) const override
    {
        if (t != QAccessible::Value)
            return QAccessibleWidget::text(t);
        QString number = QString::number(double(meter()->level()), 'f', 1);
        // A level just below zero rounds to zero; it is read without a sign.
        if (number == QLatin1String("-0.0"))
            number.remove(0, 1);
        return number + QLatin1String(" dB");
    }

    QVariant currentValue() const override { return double(meter()->level()); }
    // A meter shows a level; it is not set through assistive technology.
    void setCurrentValue(const QVariant &) override {}
    QVariant maximumValue() const override { return double(meter()->maximumLevel()); }
    QVariant minimumValue() const override { return double(meter()->minimumLevel()); }
    QVariant minimumStepSize() const override { return 0.0; }

private:
    LevelMeter *meter() const { return static_cast<LevelMeter *>(widget()); }
};

QAccessibleInterface *accessibleFactory(const QString &className, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    if (className == QLatin1String(GenericDataFader::staticMetaObject.className()))
        return new GenericDataFaderAccessible(static_cast<GenericDataFader *>(object));
    if (className == QLatin1String(Fader::staticMetaObject.className()))
        return new FaderAccessible(static_cast<Fader *>(object));
    if (className == QLatin1String(LevelMeter::staticMetaObject.className()))
        return new LevelMeterAccessible(static_cast<LevelMeter *>(object));
    return nullptr;
}

struct AccessibleFactoryRegistration
{
    AccessibleFactoryRegistration() { QAccessible::installFactory(accessibleFactory); }
    ~AccessibleFactoryRegistration() { QAccessible::removeFactory(accessibleFactory); }
    AccessibleFactoryRegistration(const AccessibleFactoryRegistration &) = delete;
    AccessibleFactoryRegistration &operator=(const AccessibleFactoryRegistration &) = delete;
};

const AccessibleFactoryRegistration registration;

} // namespace

} // namespace ko::qtToolkit::widget

#endif
