// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGETSUPPORT_H
#define KO_QTTOOLKIT_WIDGETSUPPORT_H

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QVector>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace ko::qtToolkit::test {

/// The handle rectangle of \a slider as its style reports it.
inline QRect sliderHandleRect(const QSlider &slider)
{
    // initStyleOption() is protected; a pointer to it taken through a subclass is a plain
    // pointer to QSlider's member.
    struct Access : QSlider
    {
        using QSlider::initStyleOption;
    };
    QStyleOptionSlider option;
    (slider.*(&Access::initStyleOption))(&option);
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
}

/// A move to \a position with the left button held, as a dragging finger sends it
/// (QTest::mouseMove sends no buttons).
inline void moveHeld(QWidget *widget, const QPoint &position)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// Counts the paint events of the widgets it is installed on as event filter, and records the
/// region of each.
class PaintCounter : public QObject
{
public:
    int paints = 0;
    QVector<QRegion> regions;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
            regions.append(static_cast<QPaintEvent *>(event)->region());
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace ko::qtToolkit::test

#endif
