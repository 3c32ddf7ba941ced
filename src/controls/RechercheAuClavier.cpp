// controls/RechercheAuClavier.cpp
#include "controls/RechercheAuClavier_p.h"

#include <QApplication>

#include <algorithm>
#include <chrono>

QModelIndex RechercheAuClavier::Cherche(QString const & lettres, QModelIndex const & courant,
                                        QModelIndexList const & candidats)
{
    bool const nouvelle = AjouteLettres(lettres);
    bool const repetee = EstUneLettreRepetee();
    QString const debut = repetee ? monTexte.left(1) : monTexte;
    qsizetype const position = candidats.indexOf(courant);
    // More letters may still fit the item that the first ones led to.
    qsizetype const depart = position >= 0 && (nouvelle || repetee) ? position + 1 : position;
    for (qsizetype i = 0; i < candidats.size(); ++i) {
        QModelIndex const & candidat =
            candidats[(std::max<qsizetype>(depart, 0) + i) % candidats.size()];
        if (candidat.data().toString().startsWith(debut, Qt::CaseInsensitive))
            return candidat;
    }
    return {};
}

// True when they begin a new text.
bool RechercheAuClavier::AjouteLettres(QString const & lettres)
{
    using namespace std::chrono;
    milliseconds const intervalle(QApplication::keyboardInputInterval());
    bool const nouvelle =
        !monChrono.isValid() || nanoseconds(monChrono.nsecsElapsed()) > intervalle;
    monChrono.start();
    if (nouvelle)
        monTexte.clear();
    monTexte += lettres;
    return nouvelle;
}

bool RechercheAuClavier::EstUneLettreRepetee() const
{
    return monTexte.size() > 1 && monTexte.count(monTexte.at(0)) == monTexte.size();
}
