// tests/search/HoteEspion.h
#pragma once

#include "search/UtilisateurWidgetRecherche.h"
#include "search/WidgetRechercheAbstrait.h"

#include <QList>
#include <QStringList>

#include <functional>

/// One call of a search front end on its host, with what the front end held during the call.
struct AppelRecherche
{
    QString nom; // "Nettoyer", "Chercher", "Remplacer", "RemplacerTout", "AnnulerRemplacerTout"
    QString chaine;
    QString remplacement;
    short options;
    CstRecherche::eTypeRecherche sens;
};

/// A host that searches nothing and records each call. It makes itself the host of `recherche` for
/// as long as it lives, so that it is made after the front end.
class HoteEspion final : public UtilisateurWidgetRecherche
{
public:
    explicit HoteEspion(WidgetRechercheAbstrait * recherche)
        : maRecherche(recherche)
    {
        maRecherche->MetsCallback(this);
    }
    ~HoteEspion()
    {
        if (maRecherche != nullptr)
            maRecherche->MetsCallback(nullptr);
    }
    Q_DISABLE_COPY(HoteEspion)

    void CallbackNettoyerRecherche() override { Note(QStringLiteral("Nettoyer")); }
    void CallbackChercher() override { Note(QStringLiteral("Chercher")); }
    void CallbackRemplacer() override { Note(QStringLiteral("Remplacer")); }
    void CallbackRemplacerTout() override { Note(QStringLiteral("RemplacerTout")); }
    void CallbackAnnulerRemplacerTout() override { Note(QStringLiteral("AnnulerRemplacerTout")); }

    /// The names alone, oldest first.
    QStringList DonneNoms() const
    {
        QStringList noms;
        for (AppelRecherche const & appel : appels)
            noms.append(appel.nom);
        return noms;
    }

    /// To be called when the front end goes before its host.
    void OublieRecherche() { maRecherche = nullptr; }

    QList<AppelRecherche> appels; // oldest first

    /// Runs at the end of each call, with its name; the front end may go here.
    std::function<void(QString const &)> pendantUnAppel;

private:
    void Note(QString const & nom)
    {
        appels.append({nom, maRecherche->DonneChaineRecherche(),
                       maRecherche->DonneChaineRemplacement(), maRecherche->DonneOptions(),
                       maRecherche->DonneSensRecherche()});
        if (pendantUnAppel)
            pendantUnAppel(nom);
    }

    WidgetRechercheAbstrait * maRecherche;
};
