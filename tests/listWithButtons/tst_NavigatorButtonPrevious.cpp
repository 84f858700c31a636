// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>

#include "NavigatorKindChecks.h"

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;
using ko::qtToolkit::widget::listWithButtons::NavigatorButtonPrevious;

class tst_NavigatorButtonPrevious : public QObject
{
    Q_OBJECT

private:
    const navigatorKind::Kind kind{
        QStringLiteral("left"), QStringLiteral("up"), -1, &NavigatorButtonPrevious::makeDirectionSpecifics,
        [](const QString &testId, Direction direction, QScrollBar &scrollBar, QWidget *parent) -> NavigatorButton * {
            return new NavigatorButtonPrevious(testId, direction, scrollBar, parent);
        }};

private Q_SLOTS:
    void specifics_data() { navigatorKind::directionsData(kind); }
    void specifics() { navigatorKind::checkSpecifics(kind); }
    void construction_data() { navigatorKind::directionsData(kind); }
    void construction() { navigatorKind::checkConstruction(kind); }
    void disabledAtLimit() { navigatorKind::checkDisabledAtLimit(kind); }
};

QTEST_MAIN(tst_NavigatorButtonPrevious)
#include "tst_NavigatorButtonPrevious.moc"
