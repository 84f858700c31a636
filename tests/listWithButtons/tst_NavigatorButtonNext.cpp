// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>

#include "NavigatorKindChecks.h"

using ko::qtToolkit::widget::listWithButtons::Direction;
using ko::qtToolkit::widget::listWithButtons::NavigatorButton;
using ko::qtToolkit::widget::listWithButtons::NavigatorButtonNext;

class tst_NavigatorButtonNext : public QObject
{
    Q_OBJECT

private:
    const navigatorKind::Kind kind{
        QStringLiteral("right"), QStringLiteral("down"), +1, &NavigatorButtonNext::makeDirectionSpecifics,
        [](const QString &testId, Direction direction, QScrollBar &scrollBar, QWidget *parent) -> NavigatorButton * {
            return new NavigatorButtonNext(testId, direction, scrollBar, parent);
        }};

private Q_SLOTS:
    void specifics_data() { navigatorKind::directionsData(kind); }
    void specifics() { navigatorKind::checkSpecifics(kind); }
    void construction_data() { navigatorKind::directionsData(kind); }
    void construction() { navigatorKind::checkConstruction(kind); }
    void disabledAtLimit() { navigatorKind::checkDisabledAtLimit(kind); }
};

QTEST_MAIN(tst_NavigatorButtonNext)
#include "tst_NavigatorButtonNext.moc"
