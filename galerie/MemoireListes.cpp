// galerie/MemoireListes.cpp
#include "MemoireListes.h"

#include "lists/WidgetListeEditableCochable.h"

#include <QHash>
#include <QStandardItem>

namespace {

constexpr char const * kModifiee = "modifiee"; // property of a list

struct Contenu
{
    QList<QStringList> lignes;
    QList<int> cochees;
};

QHash<QString, Contenu> & PreteContenus()
{
    static QHash<QString, Contenu> contenus;
    return contenus;
}

} // namespace

namespace MemoireListes {

WidgetListeEditable::Valeurs CreeLigne(QStringList const & textes)
{
    WidgetListeEditable::Valeurs ligne;
    for (QString const & texte : textes)
        ligne.AjouteFin({{QVariant(texte), Qt::DisplayRole}});
    return ligne;
}

QStringList DonneTextes(QList<QStandardItem *> const & items)
{
    QStringList textes;
    for (QStandardItem const * const item : items)
        textes.append(item ? item->text() : QString());
    return textes;
}

void Remplis(WidgetListeEditable & liste, QList<QStringList> const & exemples)
{
    bool const connue = Connait(liste);
    Contenu const contenu =
        connue ? PreteContenus().value(liste.objectName()) : Contenu{exemples, {}};
    for (QStringList const & textes : contenu.lignes)
        liste.AjouteElement(CreeLigne(textes));
    if (auto * const cochable = qobject_cast<WidgetListeEditableCochable *>(&liste)) {
        for (int const rangee : contenu.cochees)
            cochable->MetsCochay(rangee, true);
    }
    liste.setProperty(kModifiee, connue);
}

void MarqueModifiee(WidgetListeEditable & liste)
{
    liste.setProperty(kModifiee, true);
}

void Retiens(WidgetListeEditable const & liste)
{
    if (!liste.property(kModifiee).toBool())
        return;
    Contenu contenu;
    for (QList<QStandardItem *> const & items : liste.DonneListeStandardItems())
        contenu.lignes.append(DonneTextes(items));
    if (auto const * const cochable = qobject_cast<WidgetListeEditableCochable const *>(&liste)) {
        auto const cochees = cochable->DonneRangeesCochay();
        contenu.cochees = QList<int>(cochees.begin(), cochees.end());
    }
    PreteContenus()[liste.objectName()] = contenu;
}

bool Connait(WidgetListeEditable const & liste)
{
    return PreteContenus().contains(liste.objectName());
}

void Oublie()
{
    PreteContenus().clear();
}

} // namespace MemoireListes
