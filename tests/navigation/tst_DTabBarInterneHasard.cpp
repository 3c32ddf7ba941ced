// navigation/tst_DTabBarInterneHasard.cpp
// Random drags between bars whose windows and tabs come and go.
#include "RangeeDEssai.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeplacements = 10000;
constexpr int kBarres = 4;

/// A host: it does what the signals ask for, most of the time.
class Bureau : public QObject
{
    Q_OBJECT

public:
    explicit Bureau(unsigned graine)
        : monHasard(graine)
    {
        for (int i = 0; i < kBarres; ++i)
            mesRangees.push_back(Cree(i));
    }

    void UnDeplacement();
    QString TrouveDefaut() const;
    int depots = 0;
    int fenetres = 0;
    int sorties = 0;

public Q_SLOTS:
    void PriseDepot(int index, QWidget * barre, int position);
    void PriseFenetre();

private:
    int Tire(int borne) { return int(monHasard() % unsigned(borne)); }
    bool Chance(int surCent) { return Tire(100) < surCent; }
    std::unique_ptr<RangeeDEssai> Cree(int place);
    RangeeDEssai & PreteUne() { return *mesRangees[size_t(Tire(kBarres))]; }
    QPoint DonneUnPoint();
    void Derange(RangeeDEssai & source);
    void Termine(RangeeDEssai & source);

    std::mt19937 monHasard;
    std::vector<std::unique_ptr<RangeeDEssai>> mesRangees;
    int monNumero = 0;
};

std::unique_ptr<RangeeDEssai> Bureau::Cree(int place)
{
    auto rangee = std::make_unique<RangeeDEssai>(0, place == kBarres - 1 ? "autre" : "groupe",
                                                 QPoint(20, 20 + place * 150), 500);
    for (int i = Tire(6); i >= 0; --i)
        rangee->AjouteOnglet(QString::number(++monNumero));
    connect(rangee->barre, &DTabBarInterne::SignalAjouteOngletBarreExterne, this,
            &Bureau::PriseDepot);
    connect(rangee->barre, &DTabBarInterne::SignalOngletNouvelleFenetre, this,
            &Bureau::PriseFenetre);
    rangee->show();
    return rangee;
}

void Bureau::PriseDepot(int index, QWidget * barre, int position)
{
    ++depots;
    auto * const source = static_cast<DTabBarInterne *>(sender());
    for (auto & rangee : mesRangees) {
        if (rangee->barre != barre)
            continue;
        QString const titre = source->DonneInfos(index).titre;
        QVERIFY(index >= 0 && index < source->count());
        QVERIFY(position >= 0 && position <= rangee->barre->count());
        rangee->InsereOnglet(position, titre);
        source->removeTab(index);
        return;
    }
    QFAIL("dropped on a bar that does not exist");
}

void Bureau::PriseFenetre()
{
    ++fenetres;
    auto * const source = static_cast<DTabBarInterne *>(sender());
    if (Chance(30) && source->count() > 0)
        source->removeTab(source->currentIndex());
}

QPoint Bureau::DonneUnPoint()
{
    RangeeDEssai & rangee = PreteUne();
    if (Chance(20))
        return {Tire(800), Tire(800)};
    return rangee.barre->mapToGlobal(QPoint(Tire(rangee.width()), Tire(30)));
}

void Bureau::Derange(RangeeDEssai & source)
{
    RangeeDEssai & autre = PreteUne();
    switch (Tire(12)) {
    case 0:
    case 1:
        source.InsereOnglet(Tire(source.barre->count() + 1), QString::number(++monNumero));
        break;
    case 2:
    case 3:
        if (autre.barre->count() > 0)
            autre.barre->removeTab(Tire(autre.barre->count()));
        break;
    case 4:
        if (source.barre->count() > 0)
            source.barre->moveTab(Tire(source.barre->count()), Tire(source.barre->count()));
        break;
    case 5:
        if (&autre != &source)
            autre.hide();
        break;
    case 6:
        source.barre->setCurrentIndex(Tire(source.barre->count() + 1));
        break;
    case 7:
        source.barre->MetsTailleOnglets(60 + Tire(150));
        break;
    case 8:
        QCoreApplication::processEvents(); // paints, animates
        break;
    default:
        for (size_t i = 0; i < mesRangees.size(); ++i)
            if (mesRangees[i].get() == &autre && &autre != &source)
                mesRangees[i] = Cree(int(i)); // the other window goes, another one comes
        break;
    }
}

void Bureau::Termine(RangeeDEssai & source)
{
    switch (Tire(8)) {
    case 0:
        QTest::keyClick(source.barre, Qt::Key_Escape);
        break;
    case 1:
        source.hide();
        break;
    case 2:
        for (size_t i = 0; i < mesRangees.size(); ++i)
            if (mesRangees[i].get() == &source)
                mesRangees[i] = Cree(int(i));
        break;
    default:
        source.Relache(DonneUnPoint());
        break;
    }
}

void Bureau::UnDeplacement()
{
    RangeeDEssai & source = PreteUne();
    if (source.barre->count() == 0 || Chance(10))
        source.AjouteOnglet(QString::number(++monNumero));
    source.Presse(Tire(source.barre->count()));
    bool sortie = false;
    for (int i = Tire(8); i >= 0; --i) {
        source.Deplace(DonneUnPoint());
        sortie = sortie || source.barre->EstEnDeplacementExterne();
        if (Chance(15))
            Derange(source);
    }
    sorties += sortie;
    Termine(source);
    for (auto const & rangee : mesRangees)
        rangee->show();
}

QString Bureau::TrouveDefaut() const
{
    if (TrouveFantome())
        return u"a picture is left"_s;
    for (auto const & rangee : mesRangees) {
        if (rangee->barre->EstEnDeplacementExterne())
            return u"a bar is not idle"_s;
        if (!rangee->barre->DonnePositionIndicateur().isNull())
            return u"a target is left"_s;
        for (int i = 0; i < rangee->barre->count(); ++i) {
            if (rangee->barre->tabToolTip(i) != u"Infobulle de "_s + rangee->DonneTitre(i))
                return u"a tool tip is lost"_s;
            if (rangee->barre->accessibleTabName(i) != rangee->DonneTitre(i))
                return u"a name is lost"_s;
        }
    }
    return {};
}

} // namespace

class tst_DTabBarInterneHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void deplacementsAuHasard_data();
    void deplacementsAuHasard();
};

void tst_DTabBarInterneHasard::deplacementsAuHasard_data()
{
    QTest::addColumn<unsigned>("graine");
    for (unsigned graine = 1; graine <= 4; ++graine)
        QTest::addRow("seed %u", graine) << graine;
}

void tst_DTabBarInterneHasard::deplacementsAuHasard()
{
    QFETCH(unsigned, graine);
    Bureau bureau(graine);

    for (int i = 0; i < kDeplacements / 4; ++i) {
        bureau.UnDeplacement();
        QString const defaut = bureau.TrouveDefaut();
        QVERIFY2(defaut.isEmpty(), qPrintable(u"%1, drag %2"_s.arg(defaut).arg(i)));
        if (i % 16 == 0)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // The drags are not all alike.
    QVERIFY(bureau.sorties > kDeplacements / 8);
    QVERIFY(bureau.depots > 100);
    QVERIFY(bureau.fenetres > 100);
}

QTEST_MAIN(tst_DTabBarInterneHasard)
#include "tst_DTabBarInterneHasard.moc"
