// tests/controls/tst_DTreeViewMessageModele.cpp
#include "controls/EssaisMessage.h"

#include <QProxyStyle>
#include <QtTest>

using namespace EssaisMessage;
using namespace Qt::StringLiterals;

namespace {

/// Has a tree color the rows that it has room for below its last one.
class StyleRangeesVides : public QProxyStyle
{
public:
    int styleHint(StyleHint demande, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override
    {
        if (demande == SH_ItemView_PaintAlternatingRowColorsForEmptyArea)
            return 1;
        return QProxyStyle::styleHint(demande, option, widget, retour);
    }
};

} // namespace

// The message of an empty tree, while its models come, change and go.
class tst_DTreeViewMessageModele : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sansMessage();
    void sansModele();
    void modeleVideEtRempli();
    void racine();
    void modeleReinitialisay();
    void modeleDetruit();
    void modeleRemplacay();
};

void tst_DTreeViewMessageModele::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The base paints the empty tree until there is a message.
void tst_DTreeViewMessageModele::sansMessage()
{
    StyleRangeesVides style;
    Banc banc;
    auto const modele = DonneModele(0);
    QPalette palette = banc.vue.palette();
    palette.setColor(QPalette::AlternateBase, Qt::red);
    banc.vue.setPalette(palette);
    banc.vue.setStyle(&style);
    banc.vue.setAlternatingRowColors(true);
    auto const montreRangees = [&banc] { return Encre::BornesDe(banc.Peins(), Qt::red).isValid(); };
    for (auto * const vide : {static_cast<QStandardItemModel *>(nullptr), modele.get()}) {
        banc.vue.setModel(vide);
        QVERIFY(montreRangees());
    }
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!montreRangees());
    modele->setRowCount(1);
    QVERIFY(montreRangees());
}

void tst_DTreeViewMessageModele::sansModele()
{
    Banc banc;
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QVERIFY(banc.MontreMessage());
}

// Each change repaints the whole view by itself.
void tst_DTreeViewMessageModele::modeleVideEtRempli()
{
    Banc banc;
    auto const modele = DonneModele(0);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(banc.MontreMessage());
    for (bool const rempli : {true, false, true, false}) {
        QCoreApplication::processEvents();
        Temoin const temoin(banc.vue.viewport());
        modele->setRowCount(rempli ? 1 : 0);
        QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
        QCOMPARE(banc.MontreMessage(), !rempli);
    }
}

// What counts is the rows that the view shows.
void tst_DTreeViewMessageModele::racine()
{
    Banc banc;
    auto const modele = DonneModele(2);
    auto * const parent = new QStandardItem;
    modele->setItem(0, 0, parent);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!banc.MontreMessage());
    banc.vue.setRootIndex(parent->index());
    QVERIFY(banc.MontreMessage());
    parent->appendRow(new QStandardItem);
    QVERIFY(!banc.MontreMessage());
    parent->removeRow(0);
    QVERIFY(banc.MontreMessage());
    banc.vue.setRootIndex({});
    QVERIFY(!banc.MontreMessage());
}

void tst_DTreeViewMessageModele::modeleReinitialisay()
{
    Banc banc;
    auto const modele = DonneModele(3);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!banc.MontreMessage());
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    modele->clear();
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QVERIFY(banc.MontreMessage());
}

void tst_DTreeViewMessageModele::modeleDetruit()
{
    Banc banc;
    auto modele = DonneModele(3);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!banc.MontreMessage());
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    modele.reset();
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QVERIFY(banc.MontreMessage());
}

void tst_DTreeViewMessageModele::modeleRemplacay()
{
    Banc banc;
    auto const plein = DonneModele(3);
    auto const vide = DonneModele(0);
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    for (QStandardItemModel * const modele :
         {plein.get(), vide.get(), plein.get(), static_cast<QStandardItemModel *>(nullptr)}) {
        QCoreApplication::processEvents();
        Temoin const temoin(banc.vue.viewport());
        banc.vue.setModel(modele);
        QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
        QCOMPARE(banc.MontreMessage(), modele != plein.get());
    }
}

QTEST_MAIN(tst_DTreeViewMessageModele)
#include "tst_DTreeViewMessageModele.moc"
