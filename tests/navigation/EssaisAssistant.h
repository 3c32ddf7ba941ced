// tests/navigation/EssaisAssistant.h
#pragma once

#include "controls/DListViewClique.h"
#include "navigation/DAssistant.h"
#include "navigation/DAssistantEtape.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QtTest>

#include <functional>

// What the tests of the wizard share.
namespace EssaisAssistant {

using namespace Qt::StringLiterals;

/// A step that notes what it is asked, after its name, and answers as it is told to.
class EtapeTemoin : public DAssistantEtape
{
public:
    EtapeTemoin(QStringList & journal, QString const & nom)
        : monJournal(journal)
        , monNom(nom)
    {
        MetsTitre(u"Titre "_s + nom);
    }

    UniChaine DonneTitreEtape() override { return u"Liste "_s + monNom; }
    void EntreDansEtape() override { Passe(u"EntreDansEtape"_s, enEntrant); }
    void AnnuleEtape() override { Passe(u"AnnuleEtape"_s, enAnnulant); }
    bool PeutRevenir() override { return Passe(u"PeutRevenir"_s, enRevenant, peutRevenir); }
    bool PeutAvancer() override { return Passe(u"PeutAvancer"_s, enAvancant, peutAvancer); }
    bool PeutTerminer() override { return Passe(u"PeutTerminer"_s, enTerminant, peutTerminer); }
    bool BloqueRetour() override
    {
        return Passe(u"BloqueRetour"_s, enBloquantRetour, bloqueRetour);
    }
    bool GardePrecedentActif() override
    {
        return Passe(u"GardePrecedentActif"_s, enGardant, gardePrecedent);
    }
    bool BloqueAvance() override
    {
        return Passe(u"BloqueAvance"_s, enBloquantAvance, bloqueAvance);
    }
    bool PeutFermer(QCloseEvent * evenement) override
    {
        fermeture = evenement;
        return Passe(u"PeutFermer"_s, enFermant, peutFermer);
    }

    bool peutRevenir = true;
    bool peutAvancer = true;
    bool peutTerminer = true;
    bool peutFermer = true;
    bool bloqueRetour = false;
    bool bloqueAvance = false;
    bool gardePrecedent = false;
    QCloseEvent * fermeture = nullptr;

    /// Called by the operation; each may destroy the step.
    std::function<void()> enEntrant, enAnnulant, enRevenant, enAvancant, enTerminant,
        enBloquantRetour, enGardant, enBloquantAvance, enFermant;

private:
    bool Passe(QString const & operation, std::function<void()> const & effet, bool reponse = true)
    {
        monJournal.append(monNom + u' ' + operation);
        // A copy: the step may go with the original.
        if (auto const copie = effet)
            copie();
        return reponse;
    }

    QStringList & monJournal;
    QString monNom;
};

/// A wizard with its parts laid open.
struct Banc
{
    explicit Banc(int nombre, bool montre = true)
        : assistant(new DAssistant(nullptr))
        , liste(assistant->findChild<DListViewClique *>())
        , pile(assistant->findChild<QStackedWidget *>())
    {
        QList<QPushButton *> const boutons = assistant->findChildren<QPushButton *>();
        annuler = boutons.value(0);
        precedent = boutons.value(1);
        suivant = boutons.value(2);
        termine = boutons.value(3);
        for (int i = 0; i < nombre; ++i)
            Ajoute();
        assistant->resize(700, 480);
        if (montre)
            Montre();
    }
    ~Banc() { delete assistant.data(); }

    EtapeTemoin * Ajoute()
    {
        auto * const etape = new EtapeTemoin(journal, QString::number(etapes.size()));
        etapes.append(etape);
        assistant->AjouteEtape(etape, true);
        return etape;
    }

    void Montre()
    {
        assistant->show();
        journal.clear();
    }

    /// By Next, as far as the row; then nothing has been told.
    bool Avance(int rangee)
    {
        for (int i = 0; i < rangee; ++i) {
            if (!assistant->PriseBoutonSuivant())
                return false;
        }
        journal.clear();
        return true;
    }

    void Clique(int rangee)
    {
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                          liste->visualItemRect(liste->item(rangee)).center());
    }

    bool Active()
    {
        assistant->activateWindow();
        return QTest::qWaitForWindowActive(assistant);
    }

    /// The row that everything visible agrees on; -1 without any, -2 when they differ.
    int Rangee() const
    {
        QList<int> selectionnees;
        for (QListWidgetItem * const item : liste->selectedItems())
            selectionnees.append(liste->row(item));
        int const rangee = pile->currentIndex();
        bool const accord = selectionnees == QList<int>{rangee} && liste->currentRow() == rangee &&
                            assistant->windowTitle() == u"Titre %1"_s.arg(rangee);
        return accord ? rangee : selectionnees.isEmpty() ? -1 : -2;
    }

    QList<int> Actives() const
    {
        QList<int> rangees;
        for (int i = 0; i < liste->count(); ++i) {
            if (liste->item(i)->flags().testFlag(Qt::ItemIsEnabled))
                rangees.append(i);
        }
        return rangees;
    }

    /// "a", "p", "s" and "t" for each button that is enabled.
    QString Boutons() const
    {
        QString texte;
        if (annuler->isEnabled())
            texte += u'a';
        if (precedent->isEnabled())
            texte += u'p';
        if (suivant->isEnabled())
            texte += u's';
        if (termine->isEnabled())
            texte += u't';
        return texte;
    }

    void ActiveTout()
    {
        assistant->ActiveBoutonPrecedent(true);
        assistant->ActiveBoutonSuivant(true);
        assistant->ActiveBoutonTermine(true);
    }

    QStringList journal;
    QPointer<DAssistant> assistant;
    QPointer<DListViewClique> liste;
    QPointer<QStackedWidget> pile;
    QPointer<QPushButton> annuler, precedent, suivant, termine;
    QList<QPointer<EtapeTemoin>> etapes;
};

using Rangees = QList<int>;

/// List, stack, selection and title agree, and every move still works.
inline void VerifieCoherence(Banc & banc)
{
    QCOMPARE(banc.liste->count(), banc.pile->count());
    if (banc.pile->count() == 0)
        return;
    if (!banc.assistant->isVisible())
        banc.assistant->show();
    auto const accord = [&banc] {
        auto * const etape = qobject_cast<DAssistantEtape *>(banc.pile->currentWidget());
        return etape && banc.liste->currentRow() == banc.pile->currentIndex() &&
               banc.liste->selectedItems() == QList<QListWidgetItem *>{banc.liste->currentItem()} &&
               banc.liste->currentItem()->flags().testFlag(Qt::ItemIsEnabled) &&
               banc.assistant->windowTitle() == etape->DonneTitre();
    };
    for (int i = 0; i < banc.liste->count(); ++i)
        QVERIFY(banc.liste->item(i)->text().startsWith(QString::number(i + 1) + u'.'));
    QVERIFY(accord());
    while (banc.assistant->PriseBoutonSuivant())
        QVERIFY(accord());
    QCOMPARE(banc.pile->currentIndex(), banc.pile->count() - 1);
    banc.Clique(0);
    QVERIFY(accord());
    for (int i = 0; i < 5; ++i)
        banc.assistant->PriseBoutonPrecedent();
    QVERIFY(accord());
}

} // namespace EssaisAssistant
