// tests/galerie/FenetreRecherche.h
#pragma once

#include "EditeurCherchable.h"
#include "HoteRecherche.h"

#include "search/BarreRecherche.h"

#include <QAbstractScrollArea>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

/// A bar that counts its messages instead of showing them.
class BarreComptay : public BarreRecherche
{
public:
    using BarreRecherche::BarreRecherche;

    void AfficheMessageTexteIntrouvable(bool) const override { ++messages; }

    mutable int messages = 0;
};

/// Makes an editor of either kind, which `widget` owns, and the face that both have.
inline std::unique_ptr<EditeurCherchable> CreeEditeur(bool riche,
                                                      std::unique_ptr<QAbstractScrollArea> & widget)
{
    if (riche) {
        auto * const editeur = new QTextEdit;
        widget.reset(editeur);
        return EditeurCherchable::Fais(*editeur);
    }
    auto * const editeur = new QPlainTextEdit;
    widget.reset(editeur);
    return EditeurCherchable::Fais(*editeur);
}

/// A window with an editor of either kind, a search bar that offers all, and their host.
class FenetreRecherche : public QWidget
{
public:
    explicit FenetreRecherche(bool riche, QWidget * parent = nullptr)
        : QWidget(parent)
        , barre(new BarreComptay(nullptr, true, true, true, true))
    {
        auto * const colonne = new QVBoxLayout(this);
        if (riche)
            PoseEditeur<QTextEdit>(*colonne);
        else
            PoseEditeur<QPlainTextEdit>(*colonne);
        colonne->addWidget(barre);
        barre->hide();
        resize(400, 300);
    }

    /// Shows the window with that text and the caret at its beginning, and opens the bar.
    void Ouvre(QString const & texte)
    {
        using namespace Qt::StringLiterals;
        PreteDocument().setPlainText(texte);
        MetsCurseur(0, 0);
        Montre();
        barre->AfficheToi(CstRecherche::kNouvelleRecherche, UniChaine());
    }

    void Montre()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    QTextDocument & PreteDocument() const { return *editeur->PreteDocument(); }
    QString DonneTexte() const { return PreteDocument().toPlainText(); }
    QLineEdit & PreteChamp() const { return *DonneChamps().at(0); }
    QLineEdit & PreteChampRemplacement() const { return *DonneChamps().at(1); }
    QLabel & PreteCompteur() const
    {
        return *barre->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    }

    /// Types into the search field, in the place of what it shows.
    void Tape(QString const & texte)
    {
        PreteChamp().setFocus();
        PreteChamp().selectAll();
        if (texte.isEmpty())
            QTest::keyClick(&PreteChamp(), Qt::Key_Backspace);
        for (QChar const caractere : texte) // not all are keys that QTest knows
            QTest::sendKeyEvent(QTest::Click, &PreteChamp(), Qt::Key_unknown, caractere, {});
    }

    /// The button of the bar with that text or, for those with an icon, that tool tip.
    QToolButton & PreteBouton(QString const & nom) const
    {
        for (QToolButton * const bouton : barre->findChildren<QToolButton *>()) {
            if (bouton->text() == nom || bouton->toolTip() == nom)
                return *bouton;
        }
        qFatal("no such button");
    }

    void Choisis(QString const & texteAction)
    {
        using namespace Qt::StringLiterals;
        for (QAction * const action : PreteBouton(u"Options"_s).menu()->actions()) {
            if (action->text() == texteAction) {
                action->trigger();
                return;
            }
        }
        qFatal("no such action");
    }

    /// Opens the row to replace and types into its field.
    void Remplacement(QString const & texte)
    {
        using namespace Qt::StringLiterals;
        if (!PreteChampRemplacement().isVisible())
            Choisis(u"Remplacer"_s);
        PreteChampRemplacement().setText(texte);
    }

    void MetsCurseur(int debut, int fin)
    {
        QTextCursor curseur(&PreteDocument());
        curseur.setPosition(debut);
        curseur.setPosition(fin, QTextCursor::KeepAnchor);
        editeur->MetsCurseur(curseur);
    }

    /// "beginning-end" of the selection.
    QString DonneSelection() const
    {
        using namespace Qt::StringLiterals;
        QTextCursor const curseur = editeur->DonneCurseur();
        return u"%1-%2"_s.arg(curseur.selectionStart()).arg(curseur.selectionEnd());
    }

    /// What the counter shows; empty when it is hidden.
    QString DonneCompteur() const
    {
        return PreteCompteur().isVisible() ? PreteCompteur().text() : QString();
    }

    /// "beginning-end" of the highlights, as they stand, without full lines.
    QString DonneSurlignees() const
    {
        using namespace Qt::StringLiterals;
        QStringList plages;
        for (QTextEdit::ExtraSelection const & selection : editeur->DonneSelections()) {
            bool const vivante = !selection.cursor.isNull();
            if (vivante && !selection.format.hasProperty(QTextFormat::FullWidthSelection))
                plages += u"%1-%2"_s.arg(selection.cursor.selectionStart())
                              .arg(selection.cursor.selectionEnd());
        }
        return plages.join(u' ');
    }

    BarreComptay * barre;
    std::unique_ptr<EditeurCherchable> editeur;
    HoteRecherche * hote = nullptr;

private:
    template <typename Editeur>
    void PoseEditeur(QVBoxLayout & colonne)
    {
        auto * const nouveau = new Editeur;
        colonne.addWidget(nouveau);
        editeur = EditeurCherchable::Fais(*nouveau);
        hote = new HoteRecherche(*nouveau, *barre, this);
    }

    QList<QLineEdit *> DonneChamps() const
    {
        using namespace Qt::StringLiterals;
        return barre->findChildren<QLineEdit *>(u"ChampTexteRecherche"_s);
    }
};

/// One row for each kind of editor.
inline void AjouteEditeurs()
{
    QTest::addColumn<bool>("riche");
    QTest::newRow("rich text editor") << true;
    QTest::newRow("plain text editor") << false;
}
