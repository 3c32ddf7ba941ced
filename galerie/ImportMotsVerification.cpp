// galerie/ImportMotsVerification.cpp
#include "ImportMotsVerification.h"

#include "MotsFrancais.h"

#include <utility>

namespace {
constexpr qsizetype kMorceau = 10'000; // words, some milliseconds
} // namespace

ImportMotsVerification::ImportMotsVerification(QStringList mots, MotsFrancais & liste,
                                               QObject * parent)
    : QObject(parent)
    , mesMots(std::move(mots))
    , maListe(liste)
{
    QMetaObject::invokeMethod(this, &ImportMotsVerification::VerifieMorceau, Qt::QueuedConnection);
}

void ImportMotsVerification::VerifieMorceau()
{
    ImportMots::Verification const morceau =
        ImportMots::Verifie(mesMots.mid(monAvancement, kMorceau), maListe);
    maVerification.faite = morceau.faite;
    maVerification.connus += morceau.connus;
    maVerification.inconnus += morceau.inconnus;
    monAvancement =
        morceau.faite ? std::min(monAvancement + kMorceau, mesMots.size()) : mesMots.size();
    if (monAvancement == mesMots.size()) {
        Q_EMIT SignalTermine();
        return;
    }
    QMetaObject::invokeMethod(this, &ImportMotsVerification::VerifieMorceau, Qt::QueuedConnection);
    Q_EMIT SignalAvance();
}
