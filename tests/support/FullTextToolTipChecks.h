// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_FULLTEXTTOOLTIPCHECKS_H
#define KO_QTTOOLKIT_FULLTEXTTOOLTIPCHECKS_H

// The full-text tool tip that ElidedLabel and ElidedButton share, checked on either.

#include <QEvent>
#include <QTapAndHoldGesture>
#include <QTest>
#include <QToolTip>
#include <QWidget>

namespace ko::qtToolkit::test {

// Counts the tool-tip changes a widget sees.
class ToolTipChangeCounter : public QObject
{
public:
    int changes = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ToolTipChange)
            ++changes;
        return false;
    }
};

constexpr int narrowWidth = 40;
constexpr int wideWidth = 1000;

// Resizes \a widget and paints it, which computes the shortened text.
inline void paintAtWidth(QWidget &widget, int width)
{
    widget.resize(width, 30);
    widget.grab();
}

template<typename Widget>
void checkToolTipFollowsElision(const QString &text)
{
    Widget widget(text);
    ToolTipChangeCounter counter;
    widget.installEventFilter(&counter);

    paintAtWidth(widget, wideWidth);
    QVERIFY(widget.toolTip().isEmpty());
    QCOMPARE(counter.changes, 0);

    paintAtWidth(widget, narrowWidth);
    QCOMPARE(widget.toolTip(), text);
    QCOMPARE(widget.text(), text);
    QCOMPARE(counter.changes, 1);

    // Painting again, or at another cut width, sets nothing anew.
    paintAtWidth(widget, narrowWidth);
    paintAtWidth(widget, narrowWidth + 10);
    QCOMPARE(counter.changes, 1);

    // A new text that is also cut becomes the tool tip.
    const QString other = text + QStringLiteral(" again");
    widget.setText(other);
    widget.grab();
    QCOMPARE(widget.toolTip(), other);
    QCOMPARE(counter.changes, 2);

    paintAtWidth(widget, wideWidth);
    QVERIFY(widget.toolTip().isEmpty());
    QCOMPARE(counter.changes, 3);
}

template<typename Widget>
void checkApplicationToolTipIsKept(const QString &text)
{
    const QString own = QStringLiteral("Set by the application");

    // Set before the text is cut.
    {
        Widget widget(text);
        widget.setToolTip(own);
        paintAtWidth(widget, narrowWidth);
        QCOMPARE(widget.toolTip(), own);
        paintAtWidth(widget, wideWidth);
        QCOMPARE(widget.toolTip(), own);
    }
    // Set while the widget shows its own, also the same text as the widget's.
    for (const QString &set : {own, text}) {
        Widget widget(text);
        paintAtWidth(widget, narrowWidth);
        QCOMPARE(widget.toolTip(), text);
        widget.setToolTip(set);
        widget.setText(text + QStringLiteral(" again"));
        paintAtWidth(widget, narrowWidth);
        QCOMPARE(widget.toolTip(), set);
        paintAtWidth(widget, wideWidth);
        QCOMPARE(widget.toolTip(), set);
    }
    // Cleared by the application: the widget takes the tool tip back.
    {
        Widget widget(text);
        widget.setToolTip(own);
        paintAtWidth(widget, narrowWidth);
        widget.setToolTip(QString());
        paintAtWidth(widget, narrowWidth + 10);
        QCOMPARE(widget.toolTip(), text);
    }
}

// Presses \a widget at its centre and keeps holding; true once a tool tip reading \a text shows.
inline bool holdShowsToolTip(QWidget &widget, const QString &text)
{
    const QPoint centre = widget.rect().center();
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, centre);
    bool shown = QTest::qWaitFor([&] { return QToolTip::isVisible() && QToolTip::text() == text; }, 2000);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, centre);
    QToolTip::hideText();
    return shown;
}

template<typename Widget>
void checkPressAndHoldShowsToolTip(const QString &text)
{
    const int timeout = QTapAndHoldGesture::timeout();
    QTapAndHoldGesture::setTimeout(100);

    QWidget window;
    auto *widget = new Widget(text, &window);
    widget->setGeometry(0, 0, narrowWidth, 30);
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    widget->grab();
    QCOMPARE(widget->toolTip(), text);
    QVERIFY(holdShowsToolTip(*widget, text));

    // Only the widget's own full text: a text that fits, or the application's tool tip, leaves
    // a hold alone. A negative check has to outlast the gesture's timeout.
    widget->resize(wideWidth, 30);
    widget->grab();
    QVERIFY(widget->toolTip().isEmpty());
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::qWait(400);
    QVERIFY(!QToolTip::isVisible());
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));

    QTapAndHoldGesture::setTimeout(timeout);
}

} // namespace ko::qtToolkit::test

#endif
