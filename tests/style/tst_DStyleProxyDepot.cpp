// tests/style/tst_DStyleProxyDepot.cpp
#include "controls/DListView.h"
#include "controls/DTreeView.h"
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

// A view that draws the place of a drop itself, or says that it has not.
template <typename Vue>
class VueQuiDessine : public Vue
{
public:
    bool dessine = true;
    mutable int nombre = 0;
    mutable QStyle::PrimitiveElement element = QStyle::PE_CustomBase;
    mutable QStyleOption const * option = nullptr;
    mutable QWidget const * widget = nullptr;

    bool GereDrawPrimitive(QStyle::PrimitiveElement demande, QStyleOption const * donnee,
                           QPainter * peintre, QWidget const * vue) const override
    {
        ++nombre;
        element = demande;
        option = donnee;
        widget = vue;
        peintre->fillRect(QRect(0, 0, 2, 2), Qt::red);
        return dessine;
    }
};

} // namespace

// Where the place of a drop is shown: a view may draw it.
class tst_DStyleProxyDepot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void vueQuiDessine_data();
    void vueQuiDessine();
    void vueQuiRefuse();
    void vuesParDefaut();
    void autresElements();

private:
    QImage PeinsDepot(QWidget const * vue,
                      QStyle::PrimitiveElement element = QStyle::PE_IndicatorItemViewItemDrop);

    std::unique_ptr<BancStyle> monBanc;
    QStyleOption monOption;
};

void tst_DStyleProxyDepot::init()
{
    monBanc = std::make_unique<BancStyle>();
    monOption.rect = QRect(0, 0, 20, 10);
}

void tst_DStyleProxyDepot::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QImage tst_DStyleProxyDepot::PeinsDepot(QWidget const * vue, QStyle::PrimitiveElement element)
{
    return Peins(monOption.rect.size(), [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(element, &monOption, &peintre, vue);
    });
}

void tst_DStyleProxyDepot::vueQuiDessine_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyDepot::vueQuiDessine()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    VueQuiDessine<DTreeView> arbre;
    VueQuiDessine<DListView> liste;
    arbre.setProperty(DStyleProxy::DonneNomAttributPourStyle(), valeur);
    liste.setProperty(DStyleProxy::DonneNomAttributPourStyle(), valeur);

    QCOMPARE(EstVide(PeinsDepot(&arbre)), !compte);
    QCOMPARE(EstVide(PeinsDepot(&liste)), !compte);

    QCOMPARE(arbre.nombre, compte ? 1 : 0);
    QCOMPARE(liste.nombre, compte ? 1 : 0);
    QCOMPARE(monBanc->espion->appels.size(), compte ? 0 : 2);
    if (compte) {
        QCOMPARE(arbre.element, QStyle::PE_IndicatorItemViewItemDrop);
        QCOMPARE(arbre.option, &monOption);
        QCOMPARE(arbre.widget, &arbre);
        QCOMPARE(liste.widget, &liste);
    }
}

void tst_DStyleProxyDepot::vueQuiRefuse()
{
    VueQuiDessine<DTreeView> arbre;
    arbre.dessine = false;
    arbre.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);

    PeinsDepot(&arbre);

    QCOMPARE(arbre.nombre, 1);
    QCOMPARE(
        monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_IndicatorItemViewItemDrop).size(),
        1);
}

void tst_DStyleProxyDepot::vuesParDefaut()
{
    DTreeView arbre;
    DListView liste;
    QTreeView etrangere;
    QWidget autre;
    for (QWidget * vue : std::initializer_list<QWidget *>{&arbre, &liste, &etrangere, &autre}) {
        vue->setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);
        QVERIFY(EstVide(PeinsDepot(vue)));
    }
    PeinsDepot(nullptr);

    QCOMPARE(
        monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_IndicatorItemViewItemDrop).size(),
        5);
}

void tst_DStyleProxyDepot::autresElements()
{
    VueQuiDessine<DTreeView> arbre;
    arbre.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);

    PeinsDepot(&arbre, QStyle::PE_IndicatorBranch);
    PeinsDepot(&arbre, QStyle::PE_FrameFocusRect);

    QCOMPARE(arbre.nombre, 0);
    QCOMPARE(monBanc->espion->appels.size(), 2);
}

QTEST_MAIN(tst_DStyleProxyDepot)
#include "tst_DStyleProxyDepot.moc"
