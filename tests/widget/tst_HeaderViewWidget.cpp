// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/HeaderViewWidget_p.h>
#include <ko/qtToolkit/widget/TableWidget.h>

#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <memory>

using ko::qtToolkit::widget::HeaderViewWidget;
using ko::qtToolkit::widget::TableWidget;

namespace {

class Table : public TableWidget
{
public:
    QSize headerSectionSize(Qt::Orientation orientation) const override
    {
        return orientation == Qt::Horizontal ? QSize(70, 40) : QSize(50, 20);
    }
};

// A shown plain table view whose column header is a HeaderViewWidget: four columns of 80
// pixels, with a button in each head.
struct Fixture
{
    Fixture()
        : model(3, 4)
    {
        model.setHorizontalHeaderLabels({QStringLiteral("Gain"), QStringLiteral("Pan"), QStringLiteral("Mute"),
                                         QStringLiteral("Solo")});
        view.setModel(&model);
        header = new HeaderViewWidget(Qt::Horizontal, &view);
        view.setHorizontalHeader(header);
        header->setDefaultSectionSize(80);
        for (int section = 0; section < 4; ++section) {
            auto *button = new QPushButton(QStringLiteral("S%1").arg(section));
            button->setGeometry(untouched);
            header->setSectionWidget(section, button);
        }
        view.resize(300, 200);
    }

    static constexpr QRect untouched{-300, -300, 5, 5};
    QStandardItemModel model;
    QTableView view;
    HeaderViewWidget *header = nullptr;
};

bool isUniform(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first)
                return false;
        }
    }
    return true;
}

} // namespace

class tst_HeaderViewWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizeHintComesFromTable()
    {
        Table table;
        QCOMPARE(table.horizontalHeader()->sizeHint(), QSize(70, 40));
        QCOMPARE(table.verticalHeader()->sizeHint(), QSize(50, 20));
    }

    void sizeHintWithoutTableIsQtsOwn()
    {
        Fixture fixture;
        QHeaderView plain(Qt::Horizontal);
        plain.setModel(&fixture.model);
        plain.setDefaultSectionSize(80);
        QCOMPARE(fixture.header->sizeHint(), plain.sizeHint());
    }

    void sectionWidgets()
    {
        Fixture fixture;
        HeaderViewWidget *header = fixture.header;
        QWidget *first = header->sectionWidget(0);
        QVERIFY(first);
        QCOMPARE(first->parentWidget(), header);
        QCOMPARE(header->sectionWidget(4), nullptr);
        QCOMPARE(header->sectionWidget(-1), nullptr);

        // Moving a widget to another section empties its old section.
        QPointer<QWidget> replaced = header->sectionWidget(2);
        header->setSectionWidget(2, first);
        QVERIFY(replaced.isNull());
        QCOMPARE(header->sectionWidget(2), first);
        QCOMPARE(header->sectionWidget(0), nullptr);

        // A widget taken back by re-parenting is no longer the header's, and not deleted with it.
        QWidget keeper;
        QPointer<QWidget> takenBack = header->sectionWidget(3);
        takenBack->setParent(&keeper);
        QCOMPARE(header->sectionWidget(3), nullptr);
        header->clearSectionWidgets();
        QVERIFY(!takenBack.isNull());
        QCOMPARE(header->sectionWidget(2), nullptr);
        QVERIFY(header->findChildren<QPushButton *>().isEmpty());
    }

    void showPlacesAndShowsWidgets()
    {
        Fixture fixture;
        fixture.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.view));
        for (int section = 0; section < 4; ++section) {
            QWidget *widget = fixture.header->sectionWidget(section);
            QVERIFY(widget->isVisible());
            QCOMPARE(widget->geometry(), QRect(80 * section, 0, 80, fixture.header->height()));
        }
    }

    void resizeAndMoveFollowVisualOrder()
    {
        Fixture fixture;
        fixture.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.view));
        fixture.header->moveSection(0, 3); // visual order: 1 2 3 0
        QCOMPARE(fixture.header->sectionWidget(0)->geometry().x(), 240);
        QCOMPARE(fixture.header->sectionWidget(1)->geometry().x(), 0);

        for (int section = 0; section < 4; ++section)
            fixture.header->sectionWidget(section)->setGeometry(Fixture::untouched);
        fixture.header->resizeSection(3, 50); // visual index 2
        QCOMPARE(fixture.header->sectionWidget(1)->geometry(), Fixture::untouched);
        QCOMPARE(fixture.header->sectionWidget(2)->geometry(), Fixture::untouched);
        QCOMPARE(fixture.header->sectionWidget(3)->geometry().x(), 160);
        QCOMPARE(fixture.header->sectionWidget(3)->geometry().width(), 50);
        QCOMPARE(fixture.header->sectionWidget(0)->geometry().x(), 210);
    }

    void repositionPlacesEveryWidget()
    {
        Fixture fixture;
        fixture.header->resize(400, 30);
        fixture.header->repositionSectionWidgets();
        for (int section = 0; section < 4; ++section)
            QCOMPARE(fixture.header->sectionWidget(section)->geometry(), QRect(80 * section, 0, 80, 30));
    }

    void paintsNothingOfItsOwn()
    {
        // The same labels that a plain header paints leave this one blank.
        Fixture fixture;
        fixture.header->clearSectionWidgets();
        fixture.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.view));
        QVERIFY(isUniform(fixture.header->grab().toImage()));

        QTableView plainView;
        plainView.setModel(&fixture.model);
        plainView.resize(300, 200);
        plainView.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plainView));
        QVERIFY(!isUniform(plainView.horizontalHeader()->grab().toImage()));
    }
};

QTEST_MAIN(tst_HeaderViewWidget)
#include "tst_HeaderViewWidget.moc"
