// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ComboBox.h>

#include <TestSupport.h>

#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QWheelEvent>

#include <memory>

using ko::qtToolkit::widget::ComboBox;

namespace {

const QColor windowColor(0x20, 0xa0, 0x40);
const QColor baseColor(Qt::white);

QListView *listView(const QComboBox &comboBox)
{
    return qobject_cast<QListView *>(comboBox.view());
}

// Colours that tell the bands (Window), the empty list (Base) and the current row apart.
void paintItDistinctly(QComboBox &comboBox, const QColor &highlight = baseColor)
{
    QPalette palette = comboBox.view()->palette();
    palette.setColor(QPalette::Window, windowColor);
    palette.setColor(QPalette::Base, baseColor);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    comboBox.view()->setPalette(palette);
}

std::unique_ptr<ComboBox> comboBoxWith(int count, const QString &text = QStringLiteral("Preset %1"))
{
    auto comboBox = std::make_unique<ComboBox>();
    for (int i = 0; i < count; ++i)
        comboBox->addItem(text.arg(i));
    return comboBox;
}

bool openPopup(QComboBox &comboBox)
{
    comboBox.show();
    if (!QTest::qWaitForWindowExposed(&comboBox))
        return false;
    comboBox.showPopup();
    return QTest::qWaitFor([&] { return comboBox.view()->isVisible(); });
}

QImage popupImage(const QComboBox &comboBox)
{
    return comboBox.view()->viewport()->grab().toImage();
}

// Dark pixels of \a rect: heavier text has more of them.
int ink(const QImage &image, const QRect &rect)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            count += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
    }
    return count;
}

QWheelEvent wheelEvent(const QWidget &widget, int angle)
{
    const QPointF position = QRectF(widget.rect()).center();
    return QWheelEvent(position, widget.mapToGlobal(position.toPoint()), QPoint(), QPoint(0, angle), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
}

class PaintRecorder : public QObject
{
public:
    QVector<QRect> painted;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted.append(static_cast<QPaintEvent *>(event)->rect());
        return false;
    }
};

} // namespace

class tst_ComboBox : public QObject
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
        ComboBox comboBox(&parent);
        QCOMPARE(comboBox.parentWidget(), &parent);
        QCOMPARE(comboBox.focusPolicy(), Qt::NoFocus);
        QCOMPARE(comboBox.count(), 0);

        auto *model = qobject_cast<QStandardItemModel *>(comboBox.model());
        QVERIFY(model);
        QCOMPARE(model->parent(), &comboBox);

        QListView *view = listView(comboBox);
        QVERIFY(view);
        QCOMPARE(view->focusPolicy(), Qt::NoFocus);
        QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->model(), comboBox.model());
        QObject *owner = view;
        while (owner && owner != &comboBox)
            owner = owner->parent();
        QCOMPARE(owner, &comboBox);

        comboBox.addItems({QStringLiteral("A"), QStringLiteral("B")});
        QCOMPARE(model->rowCount(), 2);
        QCOMPARE(model->item(1)->text(), QStringLiteral("B"));
        QCOMPARE(comboBox.currentIndex(), 0);
    }

    void wheelChangesNothing_data()
    {
        QTest::addColumn<int>("angle");
        QTest::newRow("wheel up") << 120;
        QTest::newRow("wheel down") << -120;
        QTest::newRow("fast wheel down") << -360;
    }

    void wheelChangesNothing()
    {
        QFETCH(int, angle);
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(5);
        comboBox->setCurrentIndex(2);
        comboBox->show();
        QVERIFY(QTest::qWaitForWindowExposed(comboBox.get()));
        QSignalSpy changed(comboBox.get(), qOverload<int>(&QComboBox::currentIndexChanged));

        QWheelEvent event = wheelEvent(*comboBox, angle);
        QVERIFY(QCoreApplication::sendEvent(comboBox.get(), &event));
        QCOMPARE(comboBox->currentIndex(), 2);
        QVERIFY(changed.isEmpty());
        QVERIFY(!comboBox->view()->isVisible());

        // The same event turns a plain QComboBox.
        QComboBox plain;
        plain.addItems({QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                        QStringLiteral("4")});
        plain.setCurrentIndex(2);
        plain.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plain));
        QWheelEvent plainEvent = wheelEvent(plain, angle);
        QCoreApplication::sendEvent(&plain, &plainEvent);
        QVERIFY(plain.currentIndex() != 2);
    }

    void otherEventsPass()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(3);
        comboBox->show();
        QVERIFY(QTest::qWaitForWindowExposed(comboBox.get()));
        QTest::mouseClick(comboBox.get(), Qt::LeftButton);
        QTRY_VERIFY(comboBox->view()->isVisible());
        comboBox->hidePopup();
    }

    void currentRowIsBoldInTheModel()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(4);
        QAbstractItemModel *model = comboBox->model();
        comboBox->setCurrentIndex(2);
        const QVariant current = model->data(model->index(2, 0), Qt::FontRole);
        QVERIFY(current.canConvert<QFont>());
        QCOMPARE(qvariant_cast<QFont>(current).weight(), int(QFont::Bold));
        QVERIFY(!model->data(model->index(1, 0), Qt::FontRole).isValid());
        QCOMPARE(model->data(model->index(2, 0), Qt::DisplayRole).toString(), QStringLiteral("Preset 2"));

        comboBox->setCurrentIndex(1);
        QCOMPARE(qvariant_cast<QFont>(model->data(model->index(1, 0), Qt::FontRole)).weight(), int(QFont::Bold));
        QVERIFY(!model->data(model->index(2, 0), Qt::FontRole).isValid());
    }

    void itemFontsAreKept_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("italic");
        QTest::addColumn<int>("pixelSize");
        QFont italic = ko::qtToolkit::test::fixedFont(15);
        italic.setItalic(true);
        QTest::newRow("font") << QVariant(italic) << true << 15;
        QTest::newRow("font as text") << QVariant(italic.toString()) << true << 15;
        QTest::newRow("no font") << QVariant(42) << false << QFont().pixelSize();
    }

    // An item's own font stays, only made bold while the item is current.
    void itemFontsAreKept()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, italic);
        QFETCH(int, pixelSize);
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(3);
        comboBox->setItemData(1, stored, Qt::FontRole);
        comboBox->setItemData(2, stored, Qt::FontRole);
        comboBox->setCurrentIndex(1);
        QAbstractItemModel *model = comboBox->model();

        const auto font = qvariant_cast<QFont>(model->data(model->index(1, 0), Qt::FontRole));
        QCOMPARE(font.weight(), int(QFont::Bold));
        QCOMPARE(font.italic(), italic);
        QCOMPARE(font.pixelSize(), pixelSize);
        QCOMPARE(model->data(model->index(2, 0), Qt::FontRole), stored);
    }

    // In the open pop-up the current entry is bold, the others normal, even where an item
    // carries a font of its own.
    void popupShowsTheCurrentRowBold()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(6, QStringLiteral("Preset"));
        QFont italic = comboBox->font();
        italic.setItalic(true);
        comboBox->setItemData(4, italic, Qt::FontRole);
        comboBox->setItemData(5, italic, Qt::FontRole);
        paintItDistinctly(*comboBox);

        for (int current : {2, 4}) {
            comboBox->setCurrentIndex(current);
            QVERIFY(openPopup(*comboBox));
            QListView *view = listView(*comboBox);
            const QImage image = popupImage(*comboBox);
            image.save(ko::qtToolkit::test::artifactPath(QStringLiteral("ComboBox-bold-%1.png").arg(current)));
            QVector<int> inks;
            for (int row = 0; row < comboBox->count(); ++row)
                inks.append(ink(image, view->visualRect(comboBox->model()->index(row, 0))));

            const int plain = inks.at(current == 2 ? 0 : 1);
            const int plainItalic = inks.at(current == 4 ? 5 : 4);
            QVERIFY(plain > 0);
            for (int row = 0; row < 4; ++row) {
                if (row != current)
                    QCOMPARE(inks.at(row), plain);
            }
            const int normal = current == 4 ? plainItalic : plain;
            QVERIFY2(inks.at(current) > normal * 6 / 5,
                     qPrintable(QStringLiteral("%1 vs %2").arg(inks.at(current)).arg(normal)));
            comboBox->hidePopup();
        }
    }

    // Under the library's style sheet, as applications run it.
    void popupUnderTheStyleSheet()
    {
        const QString sheet = ko::qtToolkit::test::toolkitStyleSheet();
        QVERIFY(!sheet.isEmpty());
        qApp->setStyleSheet(sheet);
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(200, QStringLiteral("Preset"));
        comboBox->setCurrentIndex(100);
        QVERIFY(openPopup(*comboBox));
        QListView *view = listView(*comboBox);
        const QImage image = popupImage(*comboBox);
        image.save(ko::qtToolkit::test::artifactPath(QStringLiteral("ComboBox-stylesheet.png")));
        qApp->setStyleSheet(QString());

        QScrollBar *scrollBar = view->verticalScrollBar();
        QVERIFY(scrollBar->value() > scrollBar->minimum() && scrollBar->value() < scrollBar->maximum());
        QVERIFY(!scrollBar->isVisible());
        const QColor window = view->palette().color(QPalette::Window);
        QCOMPARE(ko::qtToolkit::test::rgbAt(image, image.width() - 2, 0), window);
        QCOMPARE(ko::qtToolkit::test::rgbAt(image, image.width() - 2, image.height() - 1), window);

        const QModelIndex current = comboBox->model()->index(100, 0);
        const QModelIndex other = comboBox->model()->index(101, 0);
        QCOMPARE(qvariant_cast<QFont>(current.data(Qt::FontRole)).weight(), int(QFont::Bold));
        QVERIFY(view->viewport()->rect().contains(view->visualRect(current)));
        QVERIFY(view->viewport()->rect().contains(view->visualRect(other)));
        QVERIFY(ink(image, view->visualRect(current)) > ink(image, view->visualRect(other)) * 6 / 5);
    }

    // The pop-up list speaks the combo box's font, whatever font the view itself was given.
    void popupUsesTheComboBoxFont()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(3);
        comboBox->setFont(ko::qtToolkit::test::fixedFont(26));
        comboBox->view()->setFont(ko::qtToolkit::test::fixedFont(8));
        QVERIFY(openPopup(*comboBox));
        const QRect row = comboBox->view()->visualRect(comboBox->model()->index(1, 0));
        QVERIFY2(row.height() >= QFontMetrics(comboBox->font()).height(), qPrintable(QString::number(row.height())));
    }

    void rowsSpanTheFullWidth()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(3);
        comboBox->addItem(QStringLiteral("A much longer entry than the others"));
        comboBox->resize(300, comboBox->sizeHint().height());
        QVERIFY(openPopup(*comboBox));
        QListView *view = listView(*comboBox);
        for (int row = 0; row < comboBox->count(); ++row) {
            const QRect rect = view->visualRect(comboBox->model()->index(row, 0));
            QCOMPARE(rect.left(), 0);
            QCOMPARE(rect.width(), view->viewport()->width());
        }
    }

    // The current row is highlighted across its whole width, decoration included.
    void selectionCoversTheDecoration()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(3);
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        comboBox->setItemIcon(1, QIcon(icon));
        comboBox->setCurrentIndex(1);
        const QColor highlight(0x30, 0x30, 0xd0);
        paintItDistinctly(*comboBox, highlight);
        QVERIFY(openPopup(*comboBox));
        const QRect row = comboBox->view()->visualRect(comboBox->model()->index(1, 0));
        const QImage image = popupImage(*comboBox);
        image.save(ko::qtToolkit::test::artifactPath(QStringLiteral("ComboBox-selection.png")));
        // The style shades the highlight a little; any strong blue is the highlight.
        auto highlighted = [&](int x) {
            const QColor color = ko::qtToolkit::test::rgbAt(image, x, row.center().y());
            return color.blue() > 180 && color.red() < 90 && color.green() < 90;
        };
        QVERIFY(highlighted(row.left() + 2));
        QVERIFY(highlighted(row.right() - 2));
    }

    void bands_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("position");
        QTest::addColumn<bool>("topBand");
        QTest::addColumn<bool>("bottomBand");
        QTest::newRow("all items fit") << 5 << QStringLiteral("top") << false << false;
        QTest::newRow("scrolled to the top") << 200 << QStringLiteral("top") << false << true;
        QTest::newRow("scrolled to the middle") << 200 << QStringLiteral("middle") << true << true;
        QTest::newRow("scrolled to the bottom") << 200 << QStringLiteral("bottom") << true << false;
    }

    // Fading bands tell where there is more to scroll: opaque Window colour at the edge, fading
    // to nothing 20 pixels in.
    void bands()
    {
        QFETCH(int, count);
        QFETCH(QString, position);
        QFETCH(bool, topBand);
        QFETCH(bool, bottomBand);
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(count);
        paintItDistinctly(*comboBox);
        QVERIFY(openPopup(*comboBox));
        QListView *view = listView(*comboBox);
        QScrollBar *scrollBar = view->verticalScrollBar();
        QCOMPARE(scrollBar->minimum() < scrollBar->maximum(), count > 5);
        // Qt's pop-up adds scroll arrows above and below the list as it scrolls, which changes
        // the range: scroll until the position holds.
        auto target = [&] {
            if (position == QLatin1String("top"))
                return scrollBar->minimum();
            if (position == QLatin1String("middle"))
                return (scrollBar->minimum() + scrollBar->maximum()) / 2;
            return scrollBar->maximum();
        };
        QVERIFY(QTest::qWaitFor([&] {
            scrollBar->setValue(target());
            return scrollBar->value() == target();
        }));

        const QImage image = popupImage(*comboBox);
        QString tag = QString::fromLatin1(QTest::currentDataTag());
        tag.replace(QLatin1Char(' '), QLatin1Char('-'));
        image.save(ko::qtToolkit::test::artifactPath(QStringLiteral("ComboBox-bands-%1.png").arg(tag)));
        const int x = image.width() - 2; // right of every caption
        const int bottom = image.height() - 1;
        auto colorAt = [&](int y) { return ko::qtToolkit::test::rgbAt(image, x, y); };

        for (int y : {0, 4, 8}) {
            QCOMPARE(colorAt(y) == windowColor, topBand);
            QCOMPARE(colorAt(bottom - y) == windowColor, bottomBand);
        }
        if (topBand) {
            const QColor fading = colorAt(14);
            QVERIFY(fading != windowColor && fading != baseColor);
            QVERIFY(fading.red() > windowColor.red() && fading.red() < baseColor.red());
            QCOMPARE(colorAt(19), baseColor);
            QCOMPARE(colorAt(20), baseColor);
        }
        if (bottomBand) {
            const QColor fading = colorAt(bottom - 14);
            QVERIFY(fading != windowColor && fading != baseColor);
            QVERIFY(fading.red() > windowColor.red() && fading.red() < baseColor.red());
            // The gradient ends at the band's last row, which keeps a trace of colour.
            QVERIFY(colorAt(bottom - 19).red() > 240);
            QCOMPARE(colorAt(bottom - 20), baseColor);
        }
        QVERIFY(!scrollBar->isVisible());
        QVERIFY(!view->horizontalScrollBar()->isVisible());
    }

    void noScrollBars_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("wideItem");
        QTest::newRow("few items") << 3 << false;
        QTest::newRow("long list") << 200 << false;
        QTest::newRow("long list with a wide item") << 200 << true;
    }

    void noScrollBars()
    {
        QFETCH(int, count);
        QFETCH(bool, wideItem);
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(count);
        // Wider than the screen, so wider than the pop-up can grow.
        if (wideItem)
            comboBox->addItem(QStringLiteral("A very long entry ").repeated(20));
        QListView *view = listView(*comboBox);
        QVERIFY(!view->verticalScrollBar()->isVisible());
        QVERIFY(openPopup(*comboBox));
        QVERIFY(!view->verticalScrollBar()->isVisible());
        QVERIFY(!view->horizontalScrollBar()->isVisible());
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        QVERIFY(!view->verticalScrollBar()->isVisible());
        QVERIFY(!view->horizontalScrollBar()->isVisible());
        QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(view->visualRect(comboBox->model()->index(0, 0)).width(), view->viewport()->width());
    }

    // Moving the finger onto another item repaints the whole list at once; moving within an
    // item does not.
    void hoverRepaintsOnItemChange()
    {
        const std::unique_ptr<ComboBox> comboBox = comboBoxWith(6);
        QVERIFY(openPopup(*comboBox));
        QListView *view = listView(*comboBox);
        QWidget *viewport = view->viewport();
        PaintRecorder recorder;
        viewport->installEventFilter(&recorder);
        auto move = [&](int row, int x) {
            const QPoint position(x, view->visualRect(comboBox->model()->index(row, 0)).center().y());
            QMouseEvent event(QEvent::MouseMove, position, viewport->mapToGlobal(position), Qt::NoButton,
                              Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(viewport, &event);
        };
        auto settle = [] {
            for (int i = 0; i < 5; ++i)
                QCoreApplication::processEvents();
        };

        move(1, 10);
        settle();
        recorder.painted.clear();
        move(3, 10);
        QTRY_VERIFY(!recorder.painted.isEmpty());
        QCOMPARE(recorder.painted.last(), viewport->rect());
        QCOMPARE(view->currentIndex().row(), 3);

        settle();
        recorder.painted.clear();
        move(3, 30);
        settle();
        QVERIFY(recorder.painted.isEmpty());
    }
};

QTEST_MAIN(tst_ComboBox)
#include "tst_ComboBox.moc"
