// tests/outils/ObjetSimulay_p.h
#pragma once

#include "outils/ToastsSimules.h"

#include "noyau/plateforme/ReferenceComptay.h"

#include <QHash>
#include <QMutex>
#include <QSet>

#include <atomic>
#include <vector>

class NotificationSimulee;

/// What the objects share, and what outlives the layer when one of them does.
struct ToastsSimules::Etat
{
    // The result of a call that begins; a failure means that it does nothing.
    HRESULT Passe(QString const & operation, QString const & arguments = {})
    {
        QMutexLocker const verrou(&mutex);
        appels << operation + u'(' + arguments + u')';
        return reponsesParRang.value(rang++, reponses.value(operation, S_OK));
    }

    // Gives the object away, unless the call is to return none.
    template <typename Interface, typename Objet>
    HRESULT Rend(HRESULT resultat, QString const & operation, Interface ** sortie, Objet cree)
    {
        *sortie = nullptr;
        if (FAILED(resultat) || EstSansObjet(operation))
            return resultat;
        *sortie = cree();
        return resultat;
    }

    bool EstSansObjet(QString const & operation) const
    {
        QMutexLocker const verrou(&mutex);
        return sansObjet.contains(operation) || sansObjetParRang.contains(rang - 1);
    }

    mutable QMutex mutex;
    QStringList appels;
    int rang = 0; // of the next call
    QHash<QString, HRESULT> reponses;
    QHash<int, HRESULT> reponsesParRang;
    QSet<QString> sansObjet;
    QSet<int> sansObjetParRang;
    Toasts::NotificationSetting reglage = Toasts::NotificationSetting_Enabled;
    QString modele;
    std::atomic<int> nombreObjets = 0;
    std::vector<ReferenceComptay<NotificationSimulee>> toasts;
};

using PointeurEtat = std::shared_ptr<ToastsSimules::Etat>;

/// The counting of every object of the simulated toasts.
template <typename Interface>
class Simulay : public Interface
{
public:
    explicit Simulay(PointeurEtat etat)
        : monEtat(std::move(etat))
    {
        ++monEtat->nombreObjets;
    }

    ULONG AddRef() override { return ++monCompte; }
    ULONG Release() override
    {
        ULONG const compte = --monCompte;
        if (compte == 0)
            delete this;
        return compte;
    }

protected:
    ~Simulay() override { --monEtat->nombreObjets; }

    PointeurEtat monEtat;

private:
    std::atomic<ULONG> monCompte = 1;
};
