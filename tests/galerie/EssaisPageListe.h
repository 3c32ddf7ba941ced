// galerie/EssaisPageListe.h
#pragma once

#include "MemoireListes.h"
#include "PageListeModifiable.h"
#include "PageRecherche.h"

#include "controls/DTreeView.h"
#include "noyau/Traductions.h"

#include <QLineEdit>
#include <QStandardItem>
#include <QtTest>

#include <memory>

/// The page of the editable lists, in French and with three words to propose.
class EssaisPageListe
{
protected:
    template <typename T>
    T & Prete(QString const & nom) const
    {
        return *maPage->findChild<T *>(nom);
    }

    WidgetListeEditable & Glossaire() const
    {
        return Prete<WidgetListeEditable>(QStringLiteral("glossaire"));
    }

    static DTreeView & Vue(WidgetListeEditable const & liste)
    {
        return *liste.findChild<DTreeView *>();
    }

    /// The one that has the focus.
    static QLineEdit * Editeur(WidgetListeEditable const & liste)
    {
        for (QLineEdit * const editeur : Vue(liste).viewport()->findChildren<QLineEdit *>())
            if (editeur->isVisible() && editeur->hasFocus())
                return editeur;
        return nullptr;
    }

    static QStringList Textes(WidgetListeEditable const & liste, int colonne = 0)
    {
        QStringList textes;
        for (int rangee = 0; rangee < liste.DonneNbRangee(); ++rangee)
            textes.append(liste.DonneElement(rangee, colonne)->text());
        return textes;
    }

    static void Choisis(WidgetListeEditable & liste, int rangee)
    {
        Vue(liste).setFocus();
        Vue(liste).setCurrentIndex(Vue(liste).model()->index(rangee, 0));
    }

    void Construis()
    {
        maPage.reset();
        maPage = std::make_unique<PageListeModifiable>();
        maPage->resize(900, 760);
        maPage->show();
        maPage->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
    }

    void Prepare()
    {
        QFile mots(monDossier.filePath(QStringLiteral("mots")));
        QVERIFY(mots.open(QIODevice::WriteOnly));
        mots.write("arbre\narc\nbateau\n");
        mots.close();
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        MemoireListes::Oublie();
        PageRecherche::PreteMemoire().mots.MetsFichier(mots.fileName());
        Construis();
    }

    QTemporaryDir monDossier;
    std::unique_ptr<PageListeModifiable> maPage;
};
