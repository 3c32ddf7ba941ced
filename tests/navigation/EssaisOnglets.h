// tests/navigation/EssaisOnglets.h
#pragma once

#include "controls/DLabelElision.h"
#include "foundation/ThemesQt.h"
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"
#include "navigation/DTabWidget.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>

// What the tests of tab widgets have in common.
namespace EssaisOnglets {

inline DTabBarInterne & Barre(DTabWidget const & onglets)
{
    return *onglets.PreteBarre()->PreteBarreInterne();
}

inline QStackedWidget & Pile(DTabWidget const & onglets)
{
    return *onglets.findChild<QStackedWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

inline QToolButton * Fermeture(DTabWidget const & onglets, int index)
{
    return qobject_cast<QToolButton *>(Barre(onglets).tabButton(index, QTabBar::RightSide));
}

inline QColor CouleurTitre(DTabWidget const & onglets, int index)
{
    return Barre(onglets).DonneInfos(index).etiquetteTitre->palette().color(QPalette::WindowText);
}

inline QColor CouleurActive()
{
    return ThemesQt::Instance()->DonneCouleur(QStringLiteral("couleurTexteDeBase"));
}

inline QColor CouleurGrise()
{
    return ThemesQt::Instance()->DonneCouleur(QStringLiteral("couleurTexteGris"));
}

/// One letter for each tab: 'A' for a title in the active colour, 'g' for a grey one.
inline QString Couleurs(DTabWidget const & onglets)
{
    QString lettres;
    for (int i = 0; i < onglets.DonneTotalOnglet(); ++i) {
        QColor const couleur = CouleurTitre(onglets, i);
        lettres += couleur == CouleurActive() ? u'A' : couleur == CouleurGrise() ? u'g' : u'?';
    }
    return lettres;
}

/// The titles in the order of the tabs, each with that of its page behind a slash if they differ.
inline QString Titres(DTabWidget const & onglets)
{
    QStringList titres;
    for (int i = 0; i < onglets.DonneTotalOnglet(); ++i) {
        QString const titre = onglets.DonneTitre(i);
        QWidget const * const page = onglets.DonneWidget(i);
        QString const nom = page ? page->objectName() : QStringLiteral("null");
        titres.append(titre == nom ? titre : titre + u'/' + nom);
    }
    return titres.join(u' ');
}

/// A page that bears its title as object name.
inline QWidget * Page(QString const & nom)
{
    auto * const page = new QWidget;
    page->setObjectName(nom);
    return page;
}

inline void Remplis(DTabWidget & onglets, QString const & noms)
{
    for (QString const & nom : noms.split(u' '))
        onglets.AjouteOnglet(Page(nom), nom);
}

inline void EnvoieSuppressions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The signals of tab widgets, in the order in which they came.
class Journal : public QObject
{
public:
    void Ecoute(DTabWidget & onglets, QString const & nom)
    {
        auto const note = [this, nom](QString const & texte) { lignes.append(nom + u' ' + texte); };
        connect(&onglets, &DTabWidget::SignalAjouteOnglet, this,
                [note] { note(QStringLiteral("ajoute")); });
        connect(&onglets, &DTabWidget::SignalDemandeFermetureOnglet, this,
                [note](int index) { note(QStringLiteral("ferme %1").arg(index)); });
        connect(&onglets, &DTabWidget::SignalOngletCourantChangay, this,
                [note](int index) { note(QStringLiteral("courant %1").arg(index)); });
        connect(&onglets, &DTabWidget::SignalOngletDeplacay, this, [note](int de, int vers) {
            note(QStringLiteral("deplacay %1 %2").arg(de).arg(vers));
        });
        connect(&onglets, &DTabWidget::SignalOngletDeplacayVersBarreExterne, this,
                [note](int index, int position, DTabWidget * cible) {
                    note(QStringLiteral("parti %1 %2 ").arg(index).arg(position) +
                         cible->objectName());
                });
        connect(&onglets, &DTabWidget::SignalOngletNouvelleFenetre, this,
                [note](int index, QWidget * page) {
                    note(QStringLiteral("fenetre %1 ").arg(index) + page->objectName());
                });
    }

    QStringList Prends() { return std::exchange(lignes, {}); }

    QStringList lignes;
};

} // namespace EssaisOnglets
