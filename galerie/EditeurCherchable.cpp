// galerie/EditeurCherchable.cpp
#include "EditeurCherchable.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>
#include <QTextCursor>

namespace {

template <typename Editeur>
class EditeurCherchableT : public EditeurCherchable
{
public:
    explicit EditeurCherchableT(Editeur & editeur)
        : monObjet(&editeur)
    {
        connect(&editeur, &Editeur::textChanged, this, &EditeurCherchable::SignalTexteChangay,
                Qt::UniqueConnection);
        connect(&editeur, &Editeur::cursorPositionChanged, this,
                &EditeurCherchable::SignalCurseurBougeay, Qt::UniqueConnection);
        connect(&editeur, &Editeur::selectionChanged, this,
                &EditeurCherchable::SignalCurseurBougeay, Qt::UniqueConnection);
    }

    QAbstractScrollArea * PreteWidget() const override { return PreteEditeur(); }
    QTextDocument * PreteDocument() const override
    {
        Editeur const * const editeur = PreteEditeur();
        return editeur == nullptr ? nullptr : editeur->document();
    }
    QTextCursor DonneCurseur() const override { return PreteEditeur()->textCursor(); }
    void MetsCurseur(QTextCursor const & curseur) override
    {
        PreteEditeur()->setTextCursor(curseur);
    }
    Selections DonneSelections() const override { return PreteEditeur()->extraSelections(); }
    void MetsSelections(Selections const & selections) override
    {
        PreteEditeur()->setExtraSelections(selections);
    }
    OccurrencesTexte::Plage DonnePlageVisible() const override
    {
        Editeur const * const editeur = PreteEditeur();
        QRect const vue = editeur->viewport()->rect();
        QTextCursor debut = editeur->cursorForPosition(vue.topLeft());
        QTextCursor fin = editeur->cursorForPosition(vue.bottomRight());
        // The corners may stand within a line, at the wrong end of one that runs to the left, or
        // behind a horizontal scroll.
        debut.movePosition(QTextCursor::StartOfLine);
        fin.movePosition(QTextCursor::EndOfLine);
        return {debut.position(), fin.position()};
    }
    Qt::TextInteractionFlags DonneInteraction() const override
    {
        return PreteEditeur()->textInteractionFlags();
    }
    void MetsInteraction(Qt::TextInteractionFlags interaction) override
    {
        PreteEditeur()->setTextInteractionFlags(interaction);
    }

private:
    // Null as soon as the destructor of the editor has begun to leave its class, unlike a QPointer
    // to it.
    Editeur * PreteEditeur() const { return qobject_cast<Editeur *>(monObjet.data()); }

    QPointer<QObject> monObjet;
};

} // namespace

std::unique_ptr<EditeurCherchable> EditeurCherchable::Fais(QTextEdit & editeur)
{
    return std::make_unique<EditeurCherchableT<QTextEdit>>(editeur);
}

std::unique_ptr<EditeurCherchable> EditeurCherchable::Fais(QPlainTextEdit & editeur)
{
    return std::make_unique<EditeurCherchableT<QPlainTextEdit>>(editeur);
}

OccurrencesTexte::Plage EditeurCherchable::DonneSelection() const
{
    QTextCursor const curseur = DonneCurseur();
    return {curseur.selectionStart(), curseur.selectionEnd()};
}

void EditeurCherchable::Selectionne(OccurrencesTexte::Plage const & plage)
{
    QTextCursor curseur(PreteDocument());
    curseur.setPosition(plage.debut);
    curseur.setPosition(plage.fin, QTextCursor::KeepAnchor);
    MetsCurseur(curseur);
}
