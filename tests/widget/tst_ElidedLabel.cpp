// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedLabel.h>

#include <FullTextToolTipChecks.h>
#include <TestSupport.h>

#include <QFontMetrics>
#include <QTest>

using ko::qtToolkit::widget::ElidedLabel;

Q_DECLARE_METATYPE(Qt::TextElideMode)

namespace {

const QString longText = QStringLiteral("Monitor mix for the drummer");

// How a plain QLabel of the same size shows \a text.
QImage plainLabelImage(const QString &text, QSize size)
{
    QLabel label(text);
    label.resize(size);
    return label.grab().toImage();
}

QString expectedElision(const QLabel &label, const QString &text, Qt::TextElideMode mode)
{
    return QFontMetrics(label.font()).elidedText(text, mode, label.width() - 4, Qt::TextShowMnemonic);
}

// How a plain QLabel of the same size shows the elided \a text.
QImage elidedLabelImage(const QLabel &label, const QString &text, Qt::TextElideMode mode)
{
    return plainLabelImage(expectedElision(label, text, mode), label.size());
}

// The smallest width the label keeps: its first character and the three characters U+00E2,
// U+0080, U+00A6, plus one pixel.
int expectedMinimumWidth(const QLabel &label, const QString &text)
{
    const QString shortest = text.left(1) + QChar(0x00E2) + QChar(0x0080) + QChar(0x00A6);
    return QFontMetrics(label.font()).horizontalAdvance(shortest) + 1;
}

class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

} // namespace

class tst_ElidedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
    }

    void defaults()
    {
        QWidget parent;
        ElidedLabel empty(&parent);
        QCOMPARE(empty.elideMode(), Qt::ElideRight);
        QVERIFY(empty.text().isEmpty());
        QCOMPARE(empty.parentWidget(), &parent);

        const ElidedLabel label(longText);
        QCOMPARE(label.text(), longText);
        QCOMPARE(label.elideMode(), Qt::ElideRight);
        QCOMPARE(label.minimumWidth(), 0);
        QVERIFY(label.metaObject()->className() == QByteArray("ko::qtToolkit::widget::ElidedLabel"));
    }

    void paintsTheElidedText_data()
    {
        QTest::addColumn<Qt::TextElideMode>("mode");
        QTest::addColumn<int>("width");
        QTest::newRow("right, narrow") << Qt::ElideRight << 60;
        QTest::newRow("right, half") << Qt::ElideRight << 90;
        QTest::newRow("left") << Qt::ElideLeft << 90;
        QTest::newRow("middle") << Qt::ElideMiddle << 90;
    }

    // The label looks like a QLabel showing the shortened text, and still holds the full one.
    void paintsTheElidedText()
    {
        QFETCH(Qt::TextElideMode, mode);
        QFETCH(int, width);
        ElidedLabel label(longText);
        label.setElideMode(mode);
        label.resize(width, 20);

        const QString elided = expectedElision(label, longText, mode);
        QVERIFY(elided != longText);
        QCOMPARE(label.grab().toImage(), plainLabelImage(elided, label.size()));
        QVERIFY(label.grab().toImage() != plainLabelImage(longText, label.size()));
        QCOMPARE(label.text(), longText);
    }

    void textThatFitsIsPaintedWhole()
    {
        ElidedLabel label(QStringLiteral("Drums"));
        label.resize(200, 20);
        QCOMPARE(label.grab().toImage(), plainLabelImage(QStringLiteral("Drums"), label.size()));
        QCOMPARE(label.text(), QStringLiteral("Drums"));
    }

    void minimumWidthAfterPainting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("wide first letter") << QStringLiteral("Wide channel name");
        QTest::newRow("narrow first letter") << QStringLiteral("input channel name");
        QTest::newRow("single character") << QStringLiteral("M");
    }

    void minimumWidthAfterPainting()
    {
        QFETCH(QString, text);
        ElidedLabel label(text);
        label.resize(60, 20);
        label.grab();
        QCOMPARE(label.minimumWidth(), expectedMinimumWidth(label, text));
        // Measured with the three characters, not with a real ellipsis.
        const QString ellipsis = text.left(1) + QChar(0x2026);
        QVERIFY(label.minimumWidth() != QFontMetrics(label.font()).horizontalAdvance(ellipsis) + 1);
    }

    // updateCache() is what painting calls; it also serves a caller who needs the width early.
    void updateCacheSetsTheMinimumWidth()
    {
        ElidedLabel label(longText);
        label.updateCache();
        QCOMPARE(label.minimumWidth(), expectedMinimumWidth(label, longText));
        label.setText(QStringLiteral("Wah"));
        label.updateCache();
        QCOMPARE(label.minimumWidth(), expectedMinimumWidth(label, QStringLiteral("Wah")));
    }

    void emptyTextKeepsTheMinimumWidth()
    {
        ElidedLabel label(longText);
        label.resize(60, 20);
        label.grab();
        const int minimum = label.minimumWidth();
        QVERIFY(minimum > 0);
        label.setText(QString());
        label.grab();
        QCOMPARE(label.minimumWidth(), minimum);
        QCOMPARE(label.grab().toImage(), plainLabelImage(QString(), label.size()));

        ElidedLabel empty;
        empty.setMinimumWidth(33);
        empty.grab();
        QCOMPARE(empty.minimumWidth(), 33);
    }

    // Without elision the label paints exactly as a QLabel and leaves its minimum width alone.
    void elideNone()
    {
        ElidedLabel label(longText);
        label.setElideMode(Qt::ElideNone);
        label.setMinimumWidth(5);
        label.resize(60, 20);
        QCOMPARE(label.grab().toImage(), plainLabelImage(longText, label.size()));
        label.resize(70, 20);
        label.setText(QStringLiteral("Another long text for the label"));
        QCOMPARE(label.grab().toImage(), plainLabelImage(label.text(), label.size()));
        QCOMPARE(label.minimumWidth(), 5);
    }

    // A new mode, a new width or a new text is seen by the next paint.
    void recomputesAfterChanges()
    {
        ElidedLabel label(longText);
        label.resize(90, 20);
        QCOMPARE(label.grab().toImage(), elidedLabelImage(label, longText, Qt::ElideRight));

        label.setElideMode(Qt::ElideLeft);
        QCOMPARE(label.elideMode(), Qt::ElideLeft);
        QCOMPARE(label.grab().toImage(), elidedLabelImage(label, longText, Qt::ElideLeft));

        label.resize(130, 20);
        QCOMPARE(label.grab().toImage(), elidedLabelImage(label, longText, Qt::ElideLeft));

        const QString other = QStringLiteral("Talkback microphone level");
        label.setText(other);
        QCOMPARE(label.grab().toImage(), elidedLabelImage(label, other, Qt::ElideLeft));
        QCOMPARE(label.text(), other);

        label.resize(400, 20);
        QCOMPARE(label.grab().toImage(), plainLabelImage(other, label.size()));
    }

    // An empty text after a longer one is not mistaken for the invalidated cache.
    void emptyTextAfterResize()
    {
        ElidedLabel label(longText);
        label.resize(90, 20);
        label.grab();
        label.setText(QString());
        label.resize(100, 20);
        QCOMPARE(label.grab().toImage(), plainLabelImage(QString(), label.size()));
    }

    void setElideModeRepaints()
    {
        ElidedLabel label(longText);
        label.resize(90, 20);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        PaintCounter counter;
        label.installEventFilter(&counter);
        label.setElideMode(Qt::ElideMiddle);
        QTRY_VERIFY(counter.paints > 0);
    }

    void setElideModeRecomputesEvenForTheSameMode()
    {
        ElidedLabel label(longText);
        label.resize(90, 20);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        label.repaint();
        const int computed = label.minimumWidth();
        QVERIFY(computed > 0);
        label.setMinimumWidth(0);
        label.repaint();
        QCOMPARE(label.minimumWidth(), 0); // the cache is valid: nothing is recomputed
        label.setElideMode(label.elideMode());
        label.repaint();
        QCOMPARE(label.minimumWidth(), computed);
    }

    // Showing the shortened text must not make the label repaint itself over and over.
    void paintingSettles()
    {
        QWidget window;
        auto *label = new ElidedLabel(longText, &window);
        label->resize(90, 20);
        PaintCounter counter;
        label->installEventFilter(&counter);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(counter.paints > 0);
        const int painted = counter.paints;
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        QCOMPARE(counter.paints, painted);
        QCOMPARE(label->text(), longText);
    }

    void fullTextIsTheToolTipWhileCut()
    {
        ko::qtToolkit::test::checkToolTipFollowsElision<ElidedLabel>(longText);
    }

    void applicationToolTipIsKept()
    {
        ko::qtToolkit::test::checkApplicationToolTipIsKept<ElidedLabel>(longText);
    }

    void pressAndHoldShowsTheFullText()
    {
        ko::qtToolkit::test::checkPressAndHoldShowsToolTip<ElidedLabel>(longText);
    }

    void elideNoneHasNoToolTip()
    {
        ElidedLabel label(longText);
        ko::qtToolkit::test::paintAtWidth(label, ko::qtToolkit::test::narrowWidth);
        QCOMPARE(label.toolTip(), longText);
        label.setElideMode(Qt::ElideNone);
        QVERIFY(label.toolTip().isEmpty());
        label.grab();
        label.updateCache();
        QVERIFY(label.toolTip().isEmpty());
        label.setElideMode(Qt::ElideLeft);
        label.grab();
        QCOMPARE(label.toolTip(), longText);
    }
};

QTEST_MAIN(tst_ElidedLabel)
#include "tst_ElidedLabel.moc"
