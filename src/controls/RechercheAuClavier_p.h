// controls/RechercheAuClavier_p.h
#pragma once

#include <QElapsedTimer>
#include <QModelIndexList>
#include <QString>

/// Finds items by their first letters as they are typed, as item views do, among given items only.
class RechercheAuClavier
{
public:
    /// The item among `candidats` that the letters typed so far lead to from `courant`, or an
    /// invalid index. Letters belong together when no more than
    /// `QApplication::keyboardInputInterval` lies between them; one letter over and over goes from
    /// one item to the next.
    QModelIndex Cherche(QString const & lettres, QModelIndex const & courant,
                        QModelIndexList const & candidats);

private:
    bool AjouteLettres(QString const & lettres);
    bool EstUneLettreRepetee() const;

    QString monTexte;
    QElapsedTimer monChrono;
};
