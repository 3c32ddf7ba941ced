// lists/EssaisVariantes.h
#pragma once

#include "controls/DTreeView.h"
#include "lists/WidgetListeEditable.h"

#include <QLineEdit>
#include <QStandardItem>
#include <QtTest>

/// What the tests of the variants of the editable list share.
namespace EssaisVariantes {

inline WidgetListeEditable::Valeurs Ligne(QStringList const & textes)
{
    WidgetListeEditable::Valeurs ligne;
    for (QString const & texte : textes)
        ligne.AjouteFin({{QVariant(texte), Qt::DisplayRole}});
    return ligne;
}

/// A list that lends what it keeps for its subclasses.
template <typename Variante>
class Ouverte : public Variante
{
public:
    explicit Ouverte(int colonnes = 2, bool editable = true, QList<QValidator *> validateurs = {})
        : Variante(nullptr, colonnes, editable, true, validateurs, false)
    {
        this->resize(400, 300);
    }

    using Variante::AjouteElement;
    using Variante::PreteEditeur;
    using Variante::PreteModele;
    using Variante::PreteVue;
    using Variante::RetireRangee;

    void Remplis(QStringList const & premiers)
    {
        for (QString const & texte : premiers)
            AjouteElement(Ligne({texte, texte + u'2'}));
    }

    /// Shown, active, and with the keyboard.
    void Montre()
    {
        this->show();
        this->activateWindow();
        this->PreteVue()->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    QStringList Textes(int colonne = 0) const
    {
        QStringList textes;
        for (int rangee = 0; rangee < this->DonneNbRangee(); ++rangee) {
            QStandardItem const * const item = this->DonneElement(rangee, colonne);
            textes.append(item ? item->text() : QStringLiteral("(null)"));
        }
        return textes;
    }

    QPoint Milieu(int rangee, int colonne = 0) const
    {
        DTreeView const & vue = *this->PreteVue();
        return vue.visualRect(vue.model()->index(rangee, colonne)).center();
    }

    void Choisis(QList<int> const & rangees)
    {
        this->VideSelection();
        for (int const rangee : rangees)
            this->Selectionne(rangee, 0, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QModelIndex const courant =
            this->PreteModele()->index(rangees.isEmpty() ? -1 : rangees.first(), 0);
        this->PreteVue()->selectionModel()->setCurrentIndex(courant, QItemSelectionModel::NoUpdate);
    }

    QList<int> Choisies() const
    {
        std::list<int> rangees = this->DonneRangeesSelectionnay();
        rangees.sort();
        return QList<int>(rangees.begin(), rangees.end());
    }

    /// The editors that are open.
    QList<QLineEdit *> Editeurs() const
    {
        QList<QLineEdit *> ouverts;
        for (QLineEdit * const editeur :
             this->PreteVue()->viewport()->template findChildren<QLineEdit *>())
            if (editeur->isVisible())
                ouverts.append(editeur);
        return ouverts;
    }
};

} // namespace EssaisVariantes
