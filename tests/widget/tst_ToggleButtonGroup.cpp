// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QSignalSpy>
#include <QTest>

using ko::qtToolkit::widget::Button;
using ko::qtToolkit::widget::ButtonGroup;
using ko::qtToolkit::widget::ToggleButtonGroup;

namespace {

// Every signal of the switch, in the order of emission.
class Recorder
{
public:
    explicit Recorder(ToggleButtonGroup &group)
    {
        QObject::connect(&group, &ToggleButtonGroup::onToggled,
                         [this](bool on) { events << QStringLiteral("on %1").arg(on); });
        QObject::connect(&group, &ToggleButtonGroup::offToggled,
                         [this](bool off) { events << QStringLiteral("off %1").arg(off); });
        QObject::connect(&group, &ButtonGroup::buttonToggled, [this](int id, bool checked) {
            events << QStringLiteral("button %1 %2").arg(id).arg(checked);
        });
    }

    QStringList events;
};

QAbstractButton *offButton(const ToggleButtonGroup &group)
{
    return group.button(0);
}

QAbstractButton *onButton(const ToggleButtonGroup &group)
{
    return group.button(1);
}

} // namespace

class tst_ToggleButtonGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        ToggleButtonGroup group;
        QVERIFY(group.isOff());
        QVERIFY(!group.isOn());
        QCOMPARE(group.buttons().size(), 2);
        QCOMPARE(group.buttons(), (QList<QAbstractButton *>{offButton(group), onButton(group)}));

        QCOMPARE(offButton(group)->text(), QStringLiteral("OFF"));
        QVERIFY(offButton(group)->isChecked());
        QCOMPARE(offButton(group)->property("top"), QVariant(true));
        QCOMPARE(offButton(group)->property("bottom"), QVariant(false));

        QCOMPARE(onButton(group)->text(), QStringLiteral("ON"));
        QVERIFY(!onButton(group)->isChecked());
        QCOMPARE(onButton(group)->property("top"), QVariant(false));
        QCOMPARE(onButton(group)->property("bottom"), QVariant(true));

        for (QAbstractButton *button : group.buttons()) {
            QVERIFY(button->isCheckable());
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        }
        QCOMPARE(group.metaObject()->className(), "ko::qtToolkit::widget::ToggleButtonGroup");
        QVERIFY(group.inherits("ko::qtToolkit::widget::ButtonGroup"));
    }

    void silentSetters_data()
    {
        QTest::addColumn<bool>("startOn");
        QTest::addColumn<bool>("useSetOn");
        QTest::addColumn<bool>("value");
        QTest::addColumn<bool>("expectOn");
        QTest::newRow("setOn(true) when off") << false << true << true << true;
        QTest::newRow("setOn(false) when on") << true << true << false << false;
        QTest::newRow("setOn(true) when on") << true << true << true << true;
        QTest::newRow("setOn(false) when off") << false << true << false << false;
        QTest::newRow("setOff(true) when on") << true << false << true << false;
        QTest::newRow("setOff(false) when off") << false << false << false << true;
        QTest::newRow("setOff(true) when off") << false << false << true << false;
        QTest::newRow("setOff(false) when on") << true << false << false << true;
    }

    // The switch's own signals stay silent; the buttons and the inner QButtonGroup still talk.
    void silentSetters()
    {
        QFETCH(bool, startOn);
        QFETCH(bool, useSetOn);
        QFETCH(bool, value);
        QFETCH(bool, expectOn);
        ToggleButtonGroup group;
        if (startOn)
            onButton(group)->setChecked(true);
        QCOMPARE(group.isOn(), startOn);

        Recorder recorder(group);
        QSignalSpy onButtonToggled(onButton(group), &QAbstractButton::toggled);
        QSignalSpy offButtonToggled(offButton(group), &QAbstractButton::toggled);
        auto *buttonGroup = group.findChild<QButtonGroup *>();
        QVERIFY(buttonGroup);
        QSignalSpy innerGroupToggled(buttonGroup, &QButtonGroup::idToggled);

        if (useSetOn)
            group.setOn(value);
        else
            group.setOff(value);

        QCOMPARE(group.isOn(), expectOn);
        QCOMPARE(group.isOff(), !expectOn);
        QVERIFY2(recorder.events.isEmpty(), qPrintable(recorder.events.join(QLatin1String(", "))));
        const int changes = startOn != expectOn ? 1 : 0;
        QCOMPARE(onButtonToggled.count(), changes);
        QCOMPARE(offButtonToggled.count(), changes);
        QCOMPARE(innerGroupToggled.count(), 2 * changes);
        QVERIFY(!group.signalsBlocked());
    }

    // A switch whose signals the application blocked stays blocked.
    void settersRestoreTheBlockingState()
    {
        ToggleButtonGroup group;
        group.blockSignals(true);
        group.setOn(true);
        QVERIFY(group.signalsBlocked());
        group.setOff(true);
        QVERIFY(group.signalsBlocked());
        QVERIFY(group.isOff());
    }

    void userClicks()
    {
        ToggleButtonGroup group;
        group.show();
        QVERIFY(QTest::qWaitForWindowExposed(&group));
        Recorder recorder(group);

        // The exclusive group unchecks OFF before ON reports its check; each button reports to
        // buttonToggled() before the forwarded signal.
        QTest::mouseClick(onButton(group), Qt::LeftButton);
        QVERIFY(group.isOn());
        QVERIFY(!group.isOff());
        QCOMPARE(recorder.events, (QStringList{QStringLiteral("button 0 0"), QStringLiteral("off 0"),
                                               QStringLiteral("button 1 1"), QStringLiteral("on 1")}));
        recorder.events.clear();

        QTest::mouseClick(onButton(group), Qt::LeftButton);
        QVERIFY(group.isOn());
        QVERIFY(recorder.events.isEmpty());

        QTest::mouseClick(offButton(group), Qt::LeftButton);
        QVERIFY(group.isOff());
        QCOMPARE(recorder.events, (QStringList{QStringLiteral("button 1 0"), QStringLiteral("on 0"),
                                               QStringLiteral("button 0 1"), QStringLiteral("off 1")}));
    }

    void captions()
    {
        ToggleButtonGroup group;
        group.setOnText(QStringLiteral("Live"));
        group.setOffText(QStringLiteral("Muted"));
        QCOMPARE(onButton(group)->text(), QStringLiteral("Live"));
        QCOMPARE(offButton(group)->text(), QStringLiteral("Muted"));
        QVERIFY(group.isOff());
        group.setTestID(QStringLiteral("Power"));
        QCOMPARE(offButton(group)->property("TestID").toString(), QStringLiteral("Power.Muted"));
        QCOMPARE(onButton(group)->property("TestID").toString(), QStringLiteral("Power.Live"));
    }
};

QTEST_MAIN(tst_ToggleButtonGroup)
#include "tst_ToggleButtonGroup.moc"
