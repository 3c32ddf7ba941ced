// galerie/BancOnglets.h
#pragma once

#include "CadrePage.h"
#include "FenetreGalerie.h"
#include "FenetreOnglets.h"
#include "OngletsGalerie.h"
#include "PageRecherche.h"
#include "ThemeGalerie.h"

#include "foundation/ThemesQt.h"
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

/// The windows of the gallery, as their tests see them: pages go by their places in the list.
class BancOnglets
{
public:
    enum ePage
    {
        kTheme = 0,
        kTextes = 1,
        kPolices = 2,
        kEcrans = 3,
        kTexteRiche = 7,
        kVues = 10
    };

    void Prepare()
    {
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        monTheme.Reinitialise();
        QVERIFY(monTheme.Applique());
        // Whatever packages this machine has.
        PageRecherche::PreteMemoire() = {};
        PageRecherche::PreteMemoire().mots.MetsFichier(QString());
    }

    void Range()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        ThemesQt::DetruisToi();
    }

    ThemeGalerie & PreteTheme() { return monTheme; }

    /// The main window with these tabs, the last one current.
    std::unique_ptr<FenetreGalerie> Ouvre(QList<int> const & pages)
    {
        auto fenetre = std::make_unique<FenetreGalerie>(monTheme);
        fenetre->MontreSeule(pages.first());
        for (int const page : pages)
            fenetre->MontrePage(page);
        fenetre->resize(700, 500); // logical pixels: smaller than any screen
        fenetre->show();
        fenetre->activateWindow();
        if (!QTest::qWaitForWindowActive(fenetre.get()))
            qWarning("The window did not become active");
        return fenetre;
    }

    static DTabBarInterne & PreteBarre(OngletsGalerie const & onglets)
    {
        return *onglets.PreteBarre()->PreteBarreInterne();
    }

    static QListWidget & PreteListe(FenetreGalerie const & fenetre)
    {
        return *fenetre.findChild<QListWidget *>(QStringLiteral("listePages"));
    }

    static QList<int> DonnePages(OngletsGalerie & onglets)
    {
        QList<int> pages;
        for (int i = 0; i < onglets.DonneTotalOnglet(); ++i)
            pages.append(onglets.PreteCadre(i)->DonnePage());
        return pages;
    }

    /// Those that were torn off, in no order; none that is on its way out.
    static QList<FenetreOnglets *> DonneDetachees()
    {
        QList<FenetreOnglets *> fenetres;
        for (QWidget * const fenetre : QApplication::topLevelWidgets())
            if (auto * const detachee = qobject_cast<FenetreOnglets *>(fenetre);
                detachee && detachee->isVisible())
                fenetres.append(detachee);
        return fenetres;
    }

    /// Tears a tab off by `DTabWidget::DetacheOnglet`; the window that it is in then.
    static FenetreOnglets * Detache(OngletsGalerie & onglets, int page)
    {
        QWidget const * const cadre = onglets.PreteCadre(onglets.TrouvePage(page));
        onglets.DetacheOnglet(onglets.TrouvePage(page));
        return qobject_cast<FenetreOnglets *>(cadre->window());
    }

    /// The menu that is open; null without one.
    static QMenu * PreteMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

    static QStringList DonneTextes(QMenu const & menu)
    {
        QStringList textes;
        for (QAction const * const action : menu.actions())
            textes.append(action->text());
        return textes;
    }

    /// Chooses the item as the user does, and waits until the menu has gone.
    static void Choisis(QMenu * menu, QString const & texte)
    {
        QVERIFY(menu);
        QPointer<QMenu> const ouvert(menu);
        for (QAction * const action : menu->actions()) {
            if (action->text() != texte)
                continue;
            menu->setActiveAction(action);
            if (action->menu()) // its own items are for the caller
                return;
            QTest::keyClick(menu, Qt::Key_Return);
            QTRY_VERIFY(!ouvert || !ouvert->isVisible());
            return;
        }
        QFAIL(qPrintable(texte));
    }

private:
    ThemeGalerie monTheme;
};
