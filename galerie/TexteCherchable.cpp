// galerie/TexteCherchable.cpp
#include "TexteCherchable.h"

#include "HoteRecherche.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "search/BarreRecherche.h"
#include "search/DialogueRechercher.h"

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QStyle>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// The property that the gallery's sheet sees.
constexpr char kIntrouvable[] = "introuvable";

// Tells what the front end asks of the host, and what the host reads then.
class HoteTracay : public HoteRecherche
{
public:
    template <typename Editeur>
    HoteTracay(Editeur & editeur, WidgetRechercheAbstrait & frontal, TraceSignaux & trace)
        : HoteRecherche(editeur, frontal)
        , monFrontal(frontal)
        , maTrace(trace)
    {
    }

    void CallbackNettoyerRecherche() override
    {
        maTrace.Ajoute(u"CallbackNettoyerRecherche()"_s);
        HoteRecherche::CallbackNettoyerRecherche();
    }

    void CallbackChercher() override
    {
        Trace(u"CallbackChercher"_s, monFrontal.DonneChaineRecherche());
        HoteRecherche::CallbackChercher();
    }

    void CallbackRemplacer() override
    {
        Trace(u"CallbackRemplacer"_s, monFrontal.DonneChaineRemplacement());
        HoteRecherche::CallbackRemplacer();
    }

    void CallbackRemplacerTout() override
    {
        Trace(u"CallbackRemplacerTout"_s, monFrontal.DonneChaineRemplacement());
        HoteRecherche::CallbackRemplacerTout();
    }

    void CallbackAnnulerRemplacerTout() override
    {
        maTrace.Ajoute(u"CallbackAnnulerRemplacerTout()"_s);
        HoteRecherche::CallbackAnnulerRemplacerTout();
    }

private:
    void Trace(QString const & appel, QString const & texte)
    {
        maTrace.Ajoute(u"%1(\"%2\", 0x%3, %4)"_s.arg(appel, texte)
                           .arg(monFrontal.DonneOptions(), 0, 16)
                           .arg(monFrontal.DonneSensRecherche()));
    }

    WidgetRechercheAbstrait & monFrontal;
    TraceSignaux & maTrace;
};

template <typename Editeur>
Editeur * CreeEditeur()
{
    auto * const editeur = new Editeur;
    editeur->setAccessibleName(TraductionGalerie(TexteGalerie("Texte")));
    editeur->setTabChangesFocus(true);
    // To break inside of a word takes Qt the square of its length: minutes for a file that is one.
    editeur->setWordWrapMode(QTextOption::WordWrap);
    return editeur;
}

} // namespace

TexteCherchable::TexteCherchable(TraceSignaux & trace, QWidget & zone, QWidget * parent)
    : QWidget(parent)
    , maTrace(trace)
    , maZone(zone)
{
    CreeEditeurs();
    CreeBarre();
    auto * const disposition = new QVBoxLayout(this);
    disposition->setContentsMargins({});
    disposition->addWidget(maPile, 1);
    disposition->addWidget(maBarre);
    RelieBarre();
}

TexteCherchable::~TexteCherchable() = default;

void TexteCherchable::MetsTexte(QString const & texte)
{
    if (EstRiche())
        monEditeurRiche->setPlainText(texte);
    else
        monEditeur->setPlainText(texte);
}

QString TexteCherchable::DonneTexte() const
{
    QTextDocument const * const document =
        EstRiche() ? monEditeurRiche->document() : monEditeur->document();
    // Not the plain text, in which ordinary spaces stand for the others.
    return document->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

void TexteCherchable::MetsRiche(bool riche)
{
    if (riche == EstRiche())
        return;
    // First: one that is replacing stops, and leaves the text whole.
    monHoteBarre.reset();
    monHoteDialogue.reset();
    QString const texte = DonneTexte();
    MetsTexte({});
    if (riche)
        maPile->setCurrentWidget(monEditeurRiche);
    else
        maPile->setCurrentWidget(monEditeur);
    MetsTexte(texte);
    RelieBarre();
    if (monDialogue)
        Relie(monHoteDialogue, *monDialogue);
    if (BarreEstOuverte())
        Demontre({}); // what is in its field, in the other editor
}

void TexteCherchable::OuvreBarre()
{
    monHoteBarre->PriseOuvrir();
}

void TexteCherchable::OuvreDialogue()
{
    CreeDialogue();
    monHoteDialogue->PriseOuvrir();
}

void TexteCherchable::Demontre(QString const & texte)
{
    QPointer<QWidget> const focus = window()->focusWidget();
    bool const estVide = monChampRecherche->text().isEmpty();
    maBarre->AfficheToi(CstRecherche::kNouvelleRecherche, UniChaine(estVide ? texte : QString()));
    if (focus)
        focus->setFocus();
    else
        monChampRecherche->clearFocus();
}

// By the first item of the bar's menu, as the user does.
void TexteCherchable::OuvreRemplacement()
{
    auto const * const options = maBarre->findChild<QToolButton *>(u"ToolButtonSansFleche"_s);
    QAction * const remplacer = options->menu()->actions().constFirst();
    if (!remplacer->isChecked())
        remplacer->trigger();
}

void TexteCherchable::Cherche(QString const & texte)
{
    maBarre->AfficheToi(CstRecherche::kNouvelleRecherche, UniChaine(texte));
}

bool TexteCherchable::BarreEstOuverte() const
{
    return !maBarre->isHidden();
}

bool TexteCherchable::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() == QEvent::Show && objet == maBarre) {
        monFocus = window()->focusWidget();
        if (monDialogue)
            monDialogue->CacheToi();
    } else if (evenement->type() == QEvent::Show && objet == monDialogue) {
        maBarre->CacheToi();
    }
    return QWidget::eventFilter(objet, evenement);
}

// Behind the events of what is shown with it: one comes here by the keyboard and goes on by it.
void TexteCherchable::showEvent(QShowEvent * evenement)
{
    QWidget::showEvent(evenement);
    if (monFocus)
        monFocus->setFocus();
    monFocus.clear();
}

void TexteCherchable::hideEvent(QHideEvent * evenement)
{
    QWidget::hideEvent(evenement);
    monFocus.clear();
    // What the dialog found would be out of sight.
    if (monDialogue && !evenement->spontaneous())
        monDialogue->CacheToi();
}

void TexteCherchable::CreeEditeurs()
{
    maPile = new QStackedWidget;
    monEditeur = CreeEditeur<QPlainTextEdit>();
    monEditeurRiche = CreeEditeur<QTextEdit>();
    monEditeurRiche->setAcceptRichText(false);
    maPile->addWidget(monEditeur);
    maPile->addWidget(monEditeurRiche);
}

void TexteCherchable::CreeBarre()
{
    maBarre = new BarreRecherche(nullptr, true, true, true, true);
    maBarre->hide();
    monChampRecherche = maBarre->findChild<QLineEdit *>(u"ChampTexteRecherche"_s);
    maBarre->installEventFilter(this);
    maTrace.Suis(maBarre, &BarreRecherche::SignalFermeture, u"SignalFermeture"_s);
    maTrace.Suis(maBarre, &BarreRecherche::SignalBarreRechercheFermay,
                 u"SignalBarreRechercheFermay"_s);
}

void TexteCherchable::CreeDialogue()
{
    if (monDialogue)
        return;
    constexpr short kTout = CstRecherche::kMotEntier | CstRecherche::kRespecterCasse |
                            CstRecherche::kBoucler | CstRecherche::kHaut | CstRecherche::kBas |
                            CstRecherche::kCommencePar | CstRecherche::kContient;
    monDialogue = new DialogueRechercher(this, true, kTout);
    monDialogue->installEventFilter(this);
    Relie(monHoteDialogue, *monDialogue);
}

bool TexteCherchable::EstRiche() const
{
    return maPile->currentWidget() == monEditeurRiche;
}

void TexteCherchable::Relie(std::unique_ptr<HoteRecherche> & hote,
                            WidgetRechercheAbstrait & frontal)
{
    if (EstRiche())
        hote = std::make_unique<HoteTracay>(*monEditeurRiche, frontal, maTrace);
    else
        hote = std::make_unique<HoteTracay>(*monEditeur, frontal, maTrace);
}

void TexteCherchable::RelieBarre()
{
    Relie(monHoteBarre, *maBarre);
    monHoteBarre->BrancheTouches(maZone);
    connect(monHoteBarre.get(), &HoteRecherche::SignalTrouvay, this, &TexteCherchable::PriseTrouvay,
            Qt::UniqueConnection);
    PriseTrouvay(true);
}

void TexteCherchable::PriseTrouvay(bool trouvay)
{
    if (monChampRecherche->property(kIntrouvable).toBool() == !trouvay)
        return;
    monChampRecherche->setProperty(kIntrouvable, !trouvay);
    monChampRecherche->style()->unpolish(monChampRecherche);
    monChampRecherche->style()->polish(monChampRecherche);
}
