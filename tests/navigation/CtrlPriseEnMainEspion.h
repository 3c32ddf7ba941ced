// tests/navigation/CtrlPriseEnMainEspion.h
#pragma once

#include "navigation/CtrlFenPriseEnMainInterface.h"
#include "navigation/ReglageBooleen.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QStringList>

#include <functional>

/// An application's controller that records what it was asked and told.
class CtrlPriseEnMainEspion : public CtrlFenPriseEnMainInterface
{
public:
    void MetsReglage(UniChaine cle, bool coche) override
    {
        reglages.append({QString(cle), coche});
        if (surReglage)
            surReglage();
    }
    UniChaine DonneNomProduit() override
    {
        questions << QStringLiteral("nom");
        return nomProduit;
    }
    UniChaine DonneVersionNumerique() override
    {
        questions << QStringLiteral("version");
        return version;
    }
    UniChaine DonneModulesLangue(bool premier, bool second) override
    {
        questions << QStringLiteral("modules %1 %2").arg(premier).arg(second);
        return modules;
    }

    UniChaine nomProduit = "produit";
    UniChaine version = "12";
    UniChaine modules = "fr-en";
    QList<QPair<QString, bool>> reglages;
    QStringList questions;
    std::function<void()> surReglage;
};

/// A setting in a group.
class ReglageSimulay : public ReglageBooleen
{
public:
    ReglageSimulay(QString const & groupe, QString const & nom, bool valeur)
        : monGroupe(groupe)
        , monNom(nom)
        , maValeur(valeur)
    {
    }
    UniChaine DonneCle(UniChaine const & separateur) const override
    {
        return monGroupe + separateur + monNom;
    }
    bool DonneValeur() const override { return maValeur; }

private:
    UniChaine monGroupe;
    UniChaine monNom;
    bool maValeur;
};

/// The row `numero` of an onboarding document: "Titre 3", "Title 3", "groupe/cle3", ...
inline QJsonObject CreeItem(int numero)
{
    QString const nombre = QString::number(numero);
    return {{QStringLiteral("titreFR"), QStringLiteral("Titre ") + nombre},
            {QStringLiteral("titreEN"), QStringLiteral("Title ") + nombre},
            {QStringLiteral("lienFR"), QStringLiteral("https://example.org/fr/") + nombre},
            {QStringLiteral("lienEN"), QStringLiteral("https://example.org/en/") + nombre},
            {QStringLiteral("cle"), QStringLiteral("groupe/cle") + nombre}};
}

/// A document with that many rows, numbered from 1.
inline QJsonObject CreeDocument(int nombre)
{
    QJsonArray items;
    for (int i = 1; i <= nombre; ++i)
        items.append(CreeItem(i));
    return {{QStringLiteral("titreFenetreFR"), QStringLiteral("Découvrir")},
            {QStringLiteral("titreFenetreEN"), QStringLiteral("Discover")},
            {QStringLiteral("explicationFR"), QStringLiteral("Cochez ce que vous avez vu.")},
            {QStringLiteral("explicationEN"), QStringLiteral("Check what you have seen.")},
            {QStringLiteral("itemsPriseEnMain"), items}};
}

inline QByteArray EcrisDocument(QJsonObject const & document)
{
    return QJsonDocument(document).toJson();
}

/// A document of three rows with `valeur` at `cle`, which is that of its second row for
/// "items/...". An undefined value removes the key.
inline QByteArray RemplaceDansDocument(QString const & cle, QJsonValue const & valeur)
{
    QJsonObject document = CreeDocument(3);
    auto const range = [&valeur](QJsonObject & objet, QString const & nom) {
        Q_ASSERT(objet.contains(nom));
        if (valeur.isUndefined())
            objet.remove(nom);
        else
            objet.insert(nom, valeur);
    };
    if (!cle.startsWith(QStringLiteral("items/"))) {
        range(document, cle);
        return EcrisDocument(document);
    }
    QJsonArray items = document[QStringLiteral("itemsPriseEnMain")].toArray();
    QJsonObject item = items[1].toObject();
    range(item, cle.section(u'/', 1));
    items[1] = item;
    document[QStringLiteral("itemsPriseEnMain")] = items;
    return EcrisDocument(document);
}
