// lists/EssaisListeChoix.h
#pragma once

#include "lists/InterfaceUtilisantListeChoixFlottante.h"
#include "lists/ListeChoixFlottante.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItem>
#include <QTreeView>
#include <QtTest>

/// What the tests of the floating choice list share.
namespace EssaisListeChoix {

using Rangees = QList<QList<QStandardItem *>>;
using Choix = QList<std::shared_ptr<QStandardItem>>;

constexpr int kRoleChoixAutomatique = 257; // part of what hosts rely on

/// Rows of `colonnes` cells; the cells behind the first have the text and their column's number.
inline Rangees CreeRangees(QStringList const & textes, int colonnes = 1)
{
    Rangees rangees;
    for (QString const & texte : textes) {
        QList<QStandardItem *> rangee = {new QStandardItem(texte)};
        for (int colonne = 1; colonne < colonnes; ++colonne)
            rangee.append(new QStandardItem(texte + QString::number(colonne)));
        rangees.append(rangee);
    }
    return rangees;
}

inline QStringList CreeTextes(int nombre)
{
    QStringList textes;
    for (int i = 0; i < nombre; ++i)
        textes.append(QStringLiteral("mot %1").arg(i));
    return textes;
}

/// The texts that the last recorded choice carries.
inline QStringList DernierChoix(QSignalSpy const & espion)
{
    QStringList textes;
    if (espion.isEmpty())
        return textes;
    for (auto const & item : espion.last().at(0).value<Choix>())
        textes.append(item ? item->text() : QStringLiteral("(null)"));
    return textes;
}

/// A field that remembers the keys that reached it.
class ChampTemoin : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
    QList<int> touches;
    QList<int> relachements;

protected:
    void keyPressEvent(QKeyEvent * touche) override
    {
        touches.append(touche->key());
        QLineEdit::keyPressEvent(touche);
    }
    void keyReleaseEvent(QKeyEvent * touche) override
    {
        relachements.append(touche->key());
        QLineEdit::keyReleaseEvent(touche);
    }
};

/// A window that remembers the keys that its field left to it.
class FenetreTemoin : public QWidget
{
public:
    QList<int> touches;

protected:
    void keyPressEvent(QKeyEvent * touche) override { touches.append(touche->key()); }
};

/// A host: a shown window with a field, its interface, and the list of the field.
struct Hote
{
    explicit Hote(bool preselectionne = false)
    {
        fenetre.setGeometry(60, 40, 320, 200);
        champ = new ChampTemoin(&fenetre);
        champ->setGeometry(20, 30, 240, 28);
        fenetre.show();
        liste = new ListeChoixFlottante(&interfaceHote, preselectionne, champ);
    }
    ~Hote() { delete liste; }
    Hote(Hote const &) = delete;
    Hote & operator=(Hote const &) = delete;

    QTreeView * Vue() const { return liste->PreteListeChoix(); }
    int Rangee() const { return Vue()->currentIndex().row(); } // -1 for none
    void MetsRangee(int rangee) const { Vue()->setCurrentIndex(Vue()->model()->index(rangee, 0)); }
    QPoint Milieu(int rangee) const
    {
        return Vue()->visualRect(Vue()->model()->index(rangee, 0)).center();
    }

    InterfaceUtilisantListeChoixFlottante interfaceHote;
    FenetreTemoin fenetre;
    ChampTemoin * champ = nullptr;
    QPointer<ListeChoixFlottante> liste;
};

} // namespace EssaisListeChoix
