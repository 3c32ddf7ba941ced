// galerie/EssaisImport.h
#pragma once

#include "AssistantImport.h"
#include "MemoireImports.h"
#include "PageAssistant.h"
#include "PageRecherche.h"

#include "controls/DTreeView.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

/// The page of the wizard, in French, with five French words to check against.
class EssaisImport
{
protected:
    enum eEtape
    {
        kSource,
        kFormat,
        kTri,
        kVerification,
        kResume
    };

    QString Ecris(QString const & nom, QByteArray const & octets) const
    {
        QFile fichier(monDossier.filePath(nom));
        if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
            return {};
        return fichier.fileName();
    }

    void Construis()
    {
        maPage.reset();
        maPage = std::make_unique<PageAssistant>();
        maPage->resize(880, 740);
        maPage->show();
        maPage->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
    }

    void Prepare()
    {
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        MemoireImports::Oublie();
        PageAssistant::PreteMemoire() = {};
        PageRecherche::PreteMemoire().mots.MetsFichier(
            Ecris(QStringLiteral("francais"), "arbre\nbateau\nchat\nété\nforêt\n"));
        Construis();
    }

    void Nettoie()
    {
        maPage.reset();
        PageAssistant::PreteMemoire() = {};
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// The wizard that is open.
    AssistantImport & Assistant() const { return *maPage->PreteAssistant(); }

    template <typename T>
    T & Champ(char const * nom) const
    {
        return *Assistant().template findChild<T *>(QString::fromLatin1(nom));
    }

    QPushButton & Bouton(QString const & texte) const
    {
        for (QPushButton * const bouton : Assistant().findChildren<QPushButton *>())
            if (bouton->text() == texte)
                return *bouton;
        qFatal("no button %s", qPrintable(texte));
    }
    QPushButton & Suivant() const { return Bouton(QStringLiteral("Suivant >")); }
    QPushButton & Precedent() const { return Bouton(QStringLiteral("< Précédent")); }
    QPushButton & Termine() const { return Bouton(QStringLiteral("Terminer")); }
    QPushButton & Annule() const { return Bouton(QStringLiteral("Annuler")); }
    /// On the left: a check box may be wider than what can be clicked of it.
    static void Clique(QWidget & widget)
    {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
    }
    /// Wherever the focus is.
    static void Frappe(Qt::Key touche, Qt::KeyboardModifiers modificateurs = {})
    {
        QTest::keyClick(QApplication::focusWidget(), touche, modificateurs);
    }

    int Etape() const { return maPage->PreteAssistant() ? Assistant().DonneEtapeCourante() : -1; }

    /// Why the current step cannot be left; empty when nothing is told.
    QString Refus() const
    {
        for (QLabel * const label :
             Assistant().findChildren<QLabel *>(QStringLiteral("messageErreur")))
            if (label->isVisible())
                return label->text();
        return {};
    }

    /// Qt takes a window for active when the one before it is.
    void AttendsAssistant()
    {
        QVERIFY(maPage->PreteAssistant());
        QTRY_COMPARE(QApplication::activeWindow(), &Assistant());
    }

    void Ouvre()
    {
        Clique(*maPage->findChild<QPushButton *>(QStringLiteral("importer")));
        AttendsAssistant();
    }

    void Colle(QString const & texte)
    {
        Clique(Champ<QRadioButton>("choixTexte"));
        QApplication::clipboard()->setText(texte);
        Champ<QPlainTextEdit>("texteColle").clear();
        QTest::keySequence(&Champ<QPlainTextEdit>("texteColle"), QKeySequence::Paste);
    }

    /// From the step where it is.
    void AvanceJusqua(int etape)
    {
        for (int suivante = Etape() + 1; suivante <= etape; ++suivante) {
            Clique(Suivant());
            QTRY_COMPARE(Etape(), suivante);
        }
    }

    void OuvreALEtape(int etape, QString const & texte)
    {
        Ouvre();
        Colle(texte);
        AvanceJusqua(etape);
    }

    void Importe(QString const & nom, QString const & texte)
    {
        OuvreALEtape(kResume, texte);
        Champ<QLineEdit>("nom").selectAll();
        QTest::keyClicks(&Champ<QLineEdit>("nom"), nom);
        Clique(Termine());
        QVERIFY(!maPage->PreteAssistant());
    }

    QListWidget & Etapes() const { return *Assistant().findChild<QListWidget *>(); }
    void CliqueEtape(int etape) const
    {
        QTest::mouseClick(Etapes().viewport(), Qt::LeftButton, {},
                          Etapes().visualItemRect(Etapes().item(etape)).center());
    }

    static QStringList Textes(QAbstractItemModel const & modele, int colonne = 0)
    {
        QStringList textes;
        for (int rangee = 0; rangee < modele.rowCount(); ++rangee)
            textes.append(modele.index(rangee, colonne).data().toString());
        return textes;
    }

    /// The page's table of what was imported.
    DTreeView & Listes() const
    {
        return *maPage->findChild<DTreeView *>(QStringLiteral("listesImportees"));
    }
    QStringList NomsDesListes() const { return Textes(*Listes().model()); }

    QTemporaryDir monDossier;
    std::unique_ptr<PageAssistant> maPage;
};
