// galerie/SurlignageOccurrences.cpp
#include "SurlignageOccurrences.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QTextDocument>

#include <utility>

namespace {

// Tells our extra selections from those of the application.
constexpr int kMarque = QTextFormat::UserProperty + 0x5243;

// The property of an editor that holds whoever highlights in it.
constexpr char kSurligneur[] = "surligneurOccurrences";

// Translucent, so that the text stays readable in a light and in a dark theme.
constexpr QRgb kFond = 0x60FFC400;
// The current match, in both.
constexpr QRgb kFondCourante = 0xFFFF9632;
constexpr QRgb kTexteCourante = 0xFF000000;

QTextCharFormat FaisFormat()
{
    QTextCharFormat format;
    format.setBackground(QColor::fromRgba(kFond));
    format.setProperty(kMarque, true);
    return format;
}

} // namespace

SurlignageOccurrences::SurlignageOccurrences(EditeurCherchable & editeur)
    : monEditeur(editeur)
{
    editeur.PreteWidget()->viewport()->installEventFilter(this);
}

SurlignageOccurrences::~SurlignageOccurrences()
{
    Retire();
}

void SurlignageOccurrences::Montre(OccurrencesTexte const & occurrences)
{
    if (monEditeur.PreteWidget() == nullptr)
        return;
    mesOccurrences = occurrences;
    monDocument = monEditeur.PreteDocument();
    maRevision = monDocument->revision();
    if (!std::exchange(jeMontre, true)) {
        PrendsLaPlace();
        ColoreSelection();
    }
    Renouvelle();
}

void SurlignageOccurrences::Retire()
{
    mesOccurrences = {};
    if (!std::exchange(jeMontre, false) || monEditeur.PreteWidget() == nullptr)
        return;
    monEditeur.MetsSelections(DonneSelectionsDesAutres());
    RendsSelection();
    monEditeur.PreteWidget()->setProperty(kSurligneur, {});
}

bool SurlignageOccurrences::EstEvincay() const
{
    SurlignageOccurrences const * const actif = PreteActif();
    return actif != nullptr && actif != this;
}

bool SurlignageOccurrences::eventFilter(QObject *, QEvent * evenement)
{
    // Painting follows every scroll, resize and change of the layout, and every change of the extra
    // selections by the application.
    if (evenement->type() == QEvent::Paint && EstPerimay())
        Renouvelle();
    return false;
}

EditeurCherchable::Selections SurlignageOccurrences::DonneSelectionsDesAutres() const
{
    EditeurCherchable::Selections selections = monEditeur.DonneSelections();
    // Those of a document that has died in its editor stay: they show nothing, but Qt up to 6.4
    // reads their text when they are taken away. All of ours being alike, it leaves them alone.
    selections.removeIf([](QTextEdit::ExtraSelection const & selection) {
        return selection.format.hasProperty(kMarque) && !selection.cursor.isNull();
    });
    return selections;
}

bool SurlignageOccurrences::EstPerimay() const
{
    if (!jeMontre || monDocument == nullptr || monDocument != monEditeur.PreteDocument() ||
        monDocument->revision() != maRevision)
        return false; // the places of the matches are no longer known
    return monEditeur.DonnePlageVisible() != maPlage ||
           monEditeur.DonneSelections().size() - DonneSelectionsDesAutres().size() != mesSurlignees;
}

void SurlignageOccurrences::Renouvelle()
{
    EditeurCherchable::Selections selections = DonneSelectionsDesAutres();
    QTextEdit::ExtraSelection surlignage;
    surlignage.format = FaisFormat();
    surlignage.cursor = QTextCursor(monEditeur.PreteDocument());
    maPlage = monEditeur.DonnePlageVisible();
    std::span<OccurrencesTexte::Plage const> const visibles = mesOccurrences.DonneDans(maPlage);
    for (OccurrencesTexte::Plage const & plage : visibles) {
        surlignage.cursor.setPosition(plage.debut);
        surlignage.cursor.setPosition(plage.fin, QTextCursor::KeepAnchor);
        selections.append(surlignage);
    }
    mesSurlignees = static_cast<qsizetype>(visibles.size());
    monEditeur.MetsSelections(selections);
}

SurlignageOccurrences * SurlignageOccurrences::PreteActif() const
{
    QWidget const * const editeur = monEditeur.PreteWidget();
    return editeur == nullptr ? nullptr
                              : editeur->property(kSurligneur).value<SurlignageOccurrences *>();
}

// Two would each take the highlights and the palette of the other for those of the application.
void SurlignageOccurrences::PrendsLaPlace()
{
    if (SurlignageOccurrences * const autre = PreteActif())
        autre->Retire();
    monEditeur.PreteWidget()->setProperty(kSurligneur, QVariant::fromValue(this));
}

void SurlignageOccurrences::ColoreSelection()
{
    QWidget & editeur = *monEditeur.PreteWidget();
    maPalette = editeur.palette();
    QPalette palette = maPalette;
    palette.setBrush(QPalette::Inactive, QPalette::Highlight, QColor(kFondCourante));
    palette.setBrush(QPalette::Inactive, QPalette::HighlightedText, QColor(kTexteCourante));
    editeur.setPalette(palette);
}

// Nothing but what is ours: the application may have given the editor another palette meanwhile.
void SurlignageOccurrences::RendsSelection()
{
    QWidget & editeur = *monEditeur.PreteWidget();
    QPalette palette = editeur.palette();
    for (auto const & [role, couleur] : {std::pair(QPalette::Highlight, kFondCourante),
                                         std::pair(QPalette::HighlightedText, kTexteCourante)}) {
        if (palette.brush(QPalette::Inactive, role) != QBrush(QColor(couleur)))
            continue;
        // What was not the editor's own follows that of the application again. A palette of its own
        // has a mask of what it sets, which goes when nothing is left.
        QPalette celuiCi;
        celuiCi.setBrush(QPalette::Inactive, role, QColor(couleur));
        palette.setBrush(QPalette::Inactive, role, maPalette.brush(QPalette::Inactive, role));
        if (!maPalette.isBrushSet(QPalette::Inactive, role))
            palette.setResolveMask(palette.resolveMask() & ~celuiCi.resolveMask());
    }
    editeur.setPalette(palette);
}
