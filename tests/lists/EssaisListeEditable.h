// lists/EssaisListeEditable.h
#pragma once

#include "lists/WidgetListeEditable.h"

#include "controls/DTreeView.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

/// What the tests of the editable list share.
namespace EssaisListeEditable {

using Valeurs = WidgetListeEditable::Valeurs;
using Cellule = sdd::ListeT<sdd::Paire<QVariant, Qt::ItemDataRole>>;
using Commande = QFlags<QItemSelectionModel::SelectionFlag>;

constexpr auto kRangee =
    QItemSelectionModel::SelectionFlags(QItemSelectionModel::Select | QItemSelectionModel::Rows);

/// A row with these texts.
inline Valeurs CreeValeurs(QStringList const & textes)
{
    Valeurs valeurs;
    for (QString const & texte : textes)
        valeurs.AjouteFin(Cellule{{texte, Qt::DisplayRole}});
    return valeurs;
}

/// Lends what subclasses see, and names its columns in the editors.
class ListeEssai : public WidgetListeEditable
{
public:
    using WidgetListeEditable::AjouteElement;
    using WidgetListeEditable::DonneAjouteEnFin;
    using WidgetListeEditable::DonneEditable;
    using WidgetListeEditable::DonneInsereApresSelection;
    using WidgetListeEditable::DonneItemsParDefaut;
    using WidgetListeEditable::DonneTailleIcone;
    using WidgetListeEditable::MetsAjouteEnFin;
    using WidgetListeEditable::MetsItemsParDefaut;
    using WidgetListeEditable::MetsTailleIcone;
    using WidgetListeEditable::PreteEditeur;
    using WidgetListeEditable::PreteModele;
    using WidgetListeEditable::PreteVue;
    using WidgetListeEditable::RetireRangee;
    using WidgetListeEditable::Vide;

    explicit ListeEssai(int colonnes = 1, bool editable = true, bool avecBoutonAjouter = true,
                        QList<QValidator *> validateurs = {}, bool insereApresSelection = false,
                        QWidget * parent = nullptr)
        : WidgetListeEditable(parent, colonnes, editable, avecBoutonAjouter, validateurs,
                              insereApresSelection)
    {
    }

    void Remplis(QStringList const & textes)
    {
        for (QString const & texte : textes)
            AjouteElement(CreeValeurs({texte}));
    }
    QString Texte(int rangee, int colonne = 0) const
    {
        return PreteModele()->index(rangee, colonne).data().toString();
    }
    /// The texts of a column.
    QStringList Textes(int colonne = 0) const
    {
        QStringList textes;
        for (int rangee = 0; rangee < DonneNbRangee(); ++rangee)
            textes.append(Texte(rangee, colonne));
        return textes;
    }
    QModelIndex Index(int rangee, int colonne = 0) const
    {
        return PreteModele()->index(rangee, colonne);
    }
    /// Adds rows to the selection, in this order.
    void SelectionneRangees(QList<int> const & rangees)
    {
        for (int const rangee : rangees)
            Selectionne(rangee, 0, kRangee);
    }
    QList<int> RangeesSelectionnay() const
    {
        std::list<int> const rangees = DonneRangeesSelectionnay();
        return {rangees.begin(), rangees.end()};
    }

    /// The widget that has the focus in the view, if it is an editor.
    QLineEdit * Editeur() const
    {
        auto * const editeur = qobject_cast<QLineEdit *>(window()->focusWidget());
        return editeur != nullptr && PreteVue()->isAncestorOf(editeur) ? editeur : nullptr;
    }
    /// How many editors are open, with or without the focus.
    int NombreEditeurs() const
    {
        int nombre = 0;
        for (QLineEdit const * const editeur : PreteVue()->viewport()->findChildren<QLineEdit *>())
            nombre += editeur->isVisible() ? 1 : 0;
        return nombre;
    }
    /// The cell whose editor has the focus; invalid without.
    QModelIndex CelluleEditee() const
    {
        for (int rangee = 0; rangee < DonneNbRangee(); ++rangee)
            for (int colonne = 0; colonne < PreteModele()->columnCount(); ++colonne)
                if (QWidget * const editeur = PreteVue()->indexWidget(Index(rangee, colonne));
                    editeur != nullptr && editeur == Editeur())
                    return Index(rangee, colonne);
        return {};
    }

    /// Shows the list in an active window: keys then go where the focus is.
    [[nodiscard]] bool Montre()
    {
        resize(300, 200);
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }
    void Touche(Qt::Key touche) { QTest::keyClick(window()->windowHandle(), touche); }
    void Tape(QString const & texte)
    {
        for (QChar const lettre : texte)
            QTest::keyClick(window()->windowHandle(), lettre.toLatin1());
    }
    void Clique(QToolButton * bouton) { QTest::mouseClick(bouton, Qt::LeftButton); }
    QPoint Milieu(int rangee, int colonne = 0) const
    {
        return PreteVue()->visualRect(Index(rangee, colonne)).center();
    }
    void CliqueCellule(int rangee, int colonne = 0, Qt::KeyboardModifiers modificateurs = {})
    {
        QTest::mouseClick(PreteVue()->viewport(), Qt::LeftButton, modificateurs,
                          Milieu(rangee, colonne));
    }
    void DoubleCliqueCellule(int rangee, int colonne = 0)
    {
        CliqueCellule(rangee, colonne);
        QTest::mouseDClick(PreteVue()->viewport(), Qt::LeftButton, {}, Milieu(rangee, colonne));
    }

    QStringList invites; // the placeholders, by column
    QList<QLineEdit *> editeursRecus;

protected:
    UniChaine DonnePlaceHolder(int colonne) override { return UniChaine(invites.value(colonne)); }
    void MetsEditeur(QLineEdit * editeur) override
    {
        editeursRecus.append(editeur);
        WidgetListeEditable::MetsEditeur(editeur);
    }
};

/// The signals of a list, one text for each, in the order in which they came.
class JournalSignaux : public QObject
{
public:
    explicit JournalSignaux(WidgetListeEditable & liste)
    {
        using namespace Qt::StringLiterals;
        using L = WidgetListeEditable;
        auto const note = [this](QString const & ligne) { lignes.append(ligne); };
        connect(&liste, &L::SignalEdition, this, [=](auto const & t) { note(u"edition "_s + t); });
        connect(&liste, &L::SignalFermetureEditeur, this, [=] { note(u"fermeture"_s); });
        connect(&liste, &L::SignalElementsModifiay, this, [=] { note(u"modifies"_s); });
        connect(&liste, &L::SignalEditionTerminay, this, [=](auto const & i, auto const & t) {
            note(u"terminee %1,%2 %3"_s.arg(i.row()).arg(i.column()).arg(t).trimmed());
        });
        connect(&liste, &L::SignalRangeeSupprimay, this, [=](auto const & items, int rangee) {
            note(u"supprimee %1 %2"_s.arg(rangee).arg(items[0] ? items[0]->text() : QString()));
        });
        connect(&liste, &L::SignalSuppression, this, [=] { note(u"suppression"_s); });
        connect(&liste, &L::SignalAjout, this, [=] { note(u"ajout"_s); });
    }

    /// The lines, which are then forgotten.
    QStringList Prends() { return std::exchange(lignes, {}); }

    QStringList lignes;
};

/// All that waits in the event loop.
inline void VideLaFile()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// For `cleanup`: what outlived the lists is gone, and with it the last window.
inline bool ToutEstParti()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return QApplication::topLevelWidgets().isEmpty();
}

} // namespace EssaisListeEditable
