// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_CHARTS_AXISNOTIFIER_H
#define KO_QTTOOLKIT_CHARTS_AXISNOTIFIER_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QObject>

namespace ko::qtToolkit::charts {

/**
 * \brief Signals changes of the settings LinearAxis and LogarithmicAxis have beyond their
 *        minor labels; see LinearAxis::notifier().
 *
 * The axes' own meta-objects declare the minor labels' properties and signals only, so that
 * code reading them finds what it always found.
 */
class KO_QTTOOLKIT_EXPORT AxisNotifier : public QObject
{
    Q_OBJECT

public:
    ~AxisNotifier() override;

Q_SIGNALS:
    /// Hiding of overlapping labels was switched on (\a hide true) or off; emitted only on change.
    void hideOverlappingLabelsChanged(bool hide);

private:
    friend class TickedAxisState;
    explicit AxisNotifier(QObject *parent);
};

} // namespace ko::qtToolkit::charts

#endif
