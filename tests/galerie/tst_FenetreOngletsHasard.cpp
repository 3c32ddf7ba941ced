// tests/galerie/tst_FenetreOngletsHasard.cpp
#include "BancOnglets.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTours = 300;
constexpr unsigned kGraine = 8;
// Quick to build.
constexpr int kPages[] = {BancOnglets::kTextes, BancOnglets::kPolices, BancOnglets::kEcrans};

} // namespace

// All ways of a tab, at random: whatever comes after what, each page is in one place at most, with
// what was entered in it.
class tst_FenetreOngletsHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void deplacements();

private:
    int Tire(int nombre) { return static_cast<int>(monHasard.bounded(nombre)); }
    QList<OngletsGalerie *> DonneOnglets(FenetreGalerie & fenetre) const;
    void Agis(FenetreGalerie & fenetre);
    void Verifie(FenetreGalerie & fenetre) const;

    QRandomGenerator monHasard{kGraine};
    BancOnglets monBanc;
};

void tst_FenetreOngletsHasard::init()
{
    monBanc.Prepare();
}

void tst_FenetreOngletsHasard::cleanup()
{
    monBanc.Range();
}

QList<OngletsGalerie *> tst_FenetreOngletsHasard::DonneOnglets(FenetreGalerie & fenetre) const
{
    QList<OngletsGalerie *> tous{&fenetre.PreteOnglets()};
    for (FenetreOnglets const * const detachee : BancOnglets::DonneDetachees())
        tous.append(&detachee->PreteOnglets());
    return tous;
}

void tst_FenetreOngletsHasard::Agis(FenetreGalerie & fenetre)
{
    QList<OngletsGalerie *> const tous = DonneOnglets(fenetre);
    OngletsGalerie & onglets = *tous.at(Tire(tous.size()));
    int const nombre = onglets.DonneTotalOnglet();
    int const index = nombre > 0 ? Tire(nombre) : -1;
    switch (Tire(8)) {
    case 0:
    case 1:
        fenetre.MontrePage(kPages[Tire(std::size(kPages))]);
        break;
    case 2:
        Q_EMIT onglets.SignalDemandeFermetureOnglet(index);
        break;
    case 3:
        onglets.DetacheOnglet(index);
        break;
    case 4:
    case 5: {
        OngletsGalerie & cible = *tous.at(Tire(tous.size()));
        onglets.EnvoieOnglet(index, &cible, Tire(cible.DonneTotalOnglet() + 1));
        break;
    }
    case 6:
        if (&onglets != &fenetre.PreteOnglets())
            onglets.window()->close();
        break;
    default:
        fenetre.MetsLangue(Tire(2) == 0 ? kLangueFrancais : kLangueAnglais);
        break;
    }
    if (Tire(3) == 0)
        QCoreApplication::processEvents();
}

void tst_FenetreOngletsHasard::Verifie(FenetreGalerie & fenetre) const
{
    QList<int> pages;
    QList<int> montrees;
    for (OngletsGalerie * const onglets : DonneOnglets(fenetre)) {
        pages += BancOnglets::DonnePages(*onglets);
        QVERIFY(onglets->DonneTotalOnglet() > 0 || onglets == &fenetre.PreteOnglets());
        if (CadrePage const * const courant = onglets->PreteCadreCourant()) {
            QVERIFY(courant->findChild<QLabel *>(u"titrePage"_s));
            montrees.append(courant->DonnePage());
        }
        for (int i = 0; i < onglets->DonneTotalOnglet(); ++i)
            QCOMPARE(onglets->DonneTitre(i), onglets->PreteCadre(i)->DonneTitre());
    }
    QCOMPARE(QSet<int>(pages.begin(), pages.end()).size(), pages.size());
    int const marquee = BancOnglets::PreteListe(fenetre).currentRow();
    QVERIFY(montrees.contains(marquee) || marquee == -1);
    for (QWidget const * const widget : QApplication::allWidgets())
        if (auto const * const champ = qobject_cast<QLineEdit const *>(widget);
            champ && champ->objectName() == u"filtreMessages")
            QCOMPARE(champ->text(), u"fermer"_s);
}

void tst_FenetreOngletsHasard::deplacements()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kPolices, BancOnglets::kTextes});
    fenetre->findChild<QLineEdit *>(u"filtreMessages"_s)->setText(u"fermer"_s);
    for (int tour = 0; tour < kTours; ++tour) {
        Agis(*fenetre);
        Verifie(*fenetre);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(u"Step %1"_s.arg(tour)));
    }
}

QTEST_MAIN(tst_FenetreOngletsHasard)
#include "tst_FenetreOngletsHasard.moc"
