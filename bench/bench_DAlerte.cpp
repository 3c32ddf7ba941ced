// bench/bench_DAlerte.cpp
//
// A silent alert from the call to its answer, beside building and destroying a bare message box
// with the same texts and buttons; and the memory that 1,000 alerts in a row leave behind. Exits
// with 1 when an alert costs more than 1.3 times the box, or when the memory grows.
#include "dialogs/DAlerte.h"
#include "dialogs/StockageReponse.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/ExecutionSilencieuse.h"

#include "Comparaison.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <limits>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

constexpr double kRatioMax = 1.3;
constexpr int kAlertes = 1000;
constexpr int kTours = 5;
constexpr long kCroissanceMax = 16; // bytes for an alert: less than the smallest block

constexpr int kBoutons = kBoutonOui | kBoutonNon | kBoutonAnnuler;

DAlerteInfo FabriqueAlerte()
{
    return {DAlerteInfo::kQuestion, u"Enregistrer les modifications ?"_s,
            u"Elles seront perdues si vous ne les enregistrez pas."_s, u"Essai"_s};
}

void Demande(DAlerteInfo const & info)
{
    Garde(DAlerte(nullptr, info, kBoutons, kBoutonOui, kBoutonAnnuler));
}

void DemandeAvecMemoire(DAlerteInfo const & info)
{
    Garde(DAlerteRappel(nullptr, info, StockeurNePlusMAviser, u"bench"_s, kBoutons, kBoutonOui,
                        kBoutonAnnuler));
}

void ConstruisBoiteNue()
{
    QMessageBox boite(QMessageBox::Question, u"Essai"_s, u"Enregistrer les modifications ?"_s,
                      QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    boite.setInformativeText(u"Elles seront perdues si vous ne les enregistrez pas."_s);
    boite.setDefaultButton(QMessageBox::Yes);
    boite.setEscapeButton(QMessageBox::Cancel);
    Garde(boite);
}

/// Answers each box as soon as it is shown.
void ReponsAToutesLesBoites(QTimer & minuterie)
{
    minuterie.setInterval(0);
    QObject::connect(&minuterie, &QTimer::timeout, [] {
        if (auto * const boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            boite->defaultButton()->click();
    });
    minuterie.start();
}

/// The bytes that an alert leaves behind. What leaks does so in every round; the allocator's own
/// slack comes and goes, so the best round counts.
template <typename Alerte>
bool MesureMemoire(char const * nom, Alerte const & alerte)
{
    long croissance = std::numeric_limits<long>::max();
    auto const lanceToutes = [&alerte] {
        for (int i = 0; i < kAlertes; ++i)
            alerte();
        ExecutionSilencieuse::OublieDialoguesJournalises(); // kept on purpose until then
    };
    lanceToutes();
    for (int tour = 0; tour < kTours; ++tour) {
        auto const avant = static_cast<long>(mallinfo2().uordblks);
        lanceToutes();
        croissance = std::min(croissance, static_cast<long>(mallinfo2().uordblks) - avant);
    }
    bool const reussi = croissance < kCroissanceMax * kAlertes;
    std::printf("%-38s %10ld bytes for %d alerts%s\n", nom, croissance, kAlertes,
                reussi ? "" : "  above the limit");
    return reussi;
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombre, arguments);
    DAlerteInfo const info = FabriqueAlerte();

    ExecutionSilencieuse::Demarre();
    Comparaison comparaison(100);
    comparaison.Mesure(
        "silent alert, bare QMessageBox",
        [&info](int repetitions) {
            while (repetitions-- > 0)
                Demande(info);
        },
        [](int repetitions) {
            while (repetitions-- > 0)
                ConstruisBoiteNue();
        },
        kRatioMax);

    bool memoireStable = MesureMemoire("memory, silent", [&info] { Demande(info); });
    memoireStable &=
        MesureMemoire("memory, silent, with a store", [&info] { DemandeAvecMemoire(info); });
    ExecutionSilencieuse::Arrete();
    QTimer minuterie;
    ReponsAToutesLesBoites(minuterie);
    memoireStable &= MesureMemoire("memory, shown and clicked", [&info] { Demande(info); });
    StockageReponse::LibereSingletons();
    return memoireStable ? comparaison.Resultat() : 1;
}
