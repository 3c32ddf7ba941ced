// tests/galerie/tst_PageVues.cpp
#include "PageVues.h"

#include "GestesJoues.h"
#include "TraceSignaux.h"

#include "controls/DListView.h"
#include "controls/DListViewClique.h"
#include "controls/DTableView.h"
#include "controls/DTreeView.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_PageVues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void colonnesRepartiesSurLaLargeur();
    void messageDeLArbreVide();
    void doubleClicSurUneCase();
    void clicDansLaListe();
    void relachementAilleurs();
    void liste();
    void longArbre();
    void doigtDansLeLongArbre();
    void vuesNommees();

private:
    template <typename T>
    T * Prete(QString const & nom) const
    {
        return maPage->findChild<T *>(nom);
    }
    QStringList DonneTrace() const;

    std::unique_ptr<PageVues> maPage;
};

void tst_PageVues::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maPage = std::make_unique<PageVues>();
    maPage->resize(900, 760);
    maPage->show();
    QVERIFY(QTest::qWaitForWindowExposed(maPage.get()));
}

void tst_PageVues::cleanup()
{
    maPage.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QStringList tst_PageVues::DonneTrace() const
{
    return maPage->findChild<TraceSignaux *>()->toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

void tst_PageVues::colonnesRepartiesSurLaLargeur()
{
    auto & arbre = *Prete<DTreeView>(u"arbreReparti"_s);
    QVERIFY(arbre.header()->isHidden());
    QCOMPARE(arbre.header()->length(), arbre.viewport()->width());
    int const largeur = arbre.viewport()->width();

    Prete<QSplitter>(u"separateur"_s)->setSizes({largeur - 100, largeur + 100});

    QVERIFY(arbre.viewport()->width() < largeur);
    QCOMPARE(arbre.header()->length(), arbre.viewport()->width());
}

void tst_PageVues::messageDeLArbreVide()
{
    auto & arbre = *Prete<DTreeView>(u"arbreVide"_s);
    QImage const message = arbre.viewport()->grab().toImage();

    arbre.AfficheMessageSiVide({});

    QVERIFY(arbre.viewport()->grab().toImage() != message);
}

void tst_PageVues::doubleClicSurUneCase()
{
    auto & table = *Prete<DTableView>(u"tableACocher"_s);
    QModelIndex const index = table.model()->index(0, 0);
    QCOMPARE(index.data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
    QStyleOptionViewItem option;
    option.initFrom(&table);
    option.rect = table.visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    QPoint const milieu =
        table.style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &table)
            .center();
    QSignalSpy changements(table.model(), &QAbstractItemModel::dataChanged);

    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, milieu);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, milieu); // without its release
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, milieu);

    QCOMPARE(index.data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
    QCOMPARE(changements.count(), 2);
}

void tst_PageVues::clicDansLaListe()
{
    auto & liste = *Prete<DListViewClique>(u"listeCliquee"_s);
    QPoint const milieu = liste.visualItemRect(liste.item(1)).center();

    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, milieu);

    QString const texte = liste.item(1)->text();
    QCOMPARE(DonneTrace(), (QStringList{u"DListViewClique::pressed(%1)"_s.arg(texte),
                                        u"DListViewClique::clicked(%1)"_s.arg(texte)}));
    QVERIFY(liste.selectedItems().isEmpty());
}

void tst_PageVues::relachementAilleurs()
{
    auto & liste = *Prete<DListViewClique>(u"listeCliquee"_s);

    QTest::mousePress(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.item(0)).center());
    QTest::mouseRelease(liste.viewport(), Qt::LeftButton, {},
                        liste.visualItemRect(liste.item(2)).center());

    QCOMPARE(DonneTrace(),
             QStringList{u"DListViewClique::pressed(%1)"_s.arg(liste.item(0)->text())});
}

void tst_PageVues::liste()
{
    auto const & vue = *Prete<DListView>(u"listeSimple"_s);
    QCOMPARE(vue.model()->rowCount(), 26);
    QCOMPARE(vue.currentIndex().row(), 1);
}

void tst_PageVues::longArbre()
{
    auto & arbre = *Prete<DTreeView>(u"longArbre"_s);
    auto const & modele = *arbre.model();
    int rangs = modele.rowCount();
    for (int rang = 0; rang < modele.rowCount(); ++rang) {
        QVERIFY(arbre.isExpanded(modele.index(rang, 0)));
        rangs += modele.rowCount(modele.index(rang, 0));
    }
    QCOMPARE(rangs, PageVues::kRangsDeLArbre);
    QTRY_VERIFY(!arbre.horizontalScrollBar()->isVisible());
}

void tst_PageVues::doigtDansLeLongArbre()
{
    auto & arbre = *Prete<DTreeView>(u"longArbre"_s);
    GestesJoues gestes;

    gestes.Glisse(*arbre.viewport());

    QTRY_VERIFY(arbre.verticalScrollBar()->value() > 0);
    QTRY_COMPARE(QScroller::scroller(arbre.viewport())->state(), QScroller::Inactive);
}

void tst_PageVues::vuesNommees()
{
    auto const vues = maPage->findChildren<QAbstractItemView *>();
    for (QAbstractItemView const * const vue : vues)
        if (!qobject_cast<QHeaderView const *>(vue))
            QVERIFY2(!vue->accessibleName().isEmpty(), qPrintable(vue->objectName()));
}

QTEST_MAIN(tst_PageVues)
#include "tst_PageVues.moc"
