// galerie/PageChevron.cpp
#include "PageChevron.h"

#include "ApercuFenetre.h"
#include "OutilDeBande.h"
#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "controls/DBoutonSansFleche.h"
#include "lists/DFrameChevronnable.h"
#include "lists/LayoutHorizontalAvecChevron.h"

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QSlider>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kHauteurTexte = 190;
constexpr int kHauteurTrace = 72;
constexpr int kEspacementJours = 8;

// Per cent of the width that the bands may have.
constexpr int kLargeurMin = 4;
constexpr int kLargeurMax = 100;
constexpr int kLargeurInitiale = 14; // some tools have no room, even without their texts

// Points.
constexpr double kPas = 2.0;
constexpr double kTailleMin = 6.0;
constexpr double kTailleInitiale = 10.0; // for a text whose size is told in pixels

// As wide as it is told, in per cent, of what the row has, whatever the band asks for.
QHBoxLayout * CreeRangee(DFrameChevronnable * bande)
{
    auto * const rangee = new QHBoxLayout;
    auto * const reste = new QWidget;
    for (QWidget * const widget : {static_cast<QWidget *>(bande), reste})
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    rangee->setSpacing(0);
    rangee->addWidget(bande);
    rangee->addWidget(reste);
    return rangee;
}

// The band asks for no height: the row has that of what stands in it, hidden or not.
void AjusteHauteur(DFrameChevronnable & bande)
{
    bande.setMinimumHeight(bande.layout()->sizeHint().height() + 2 * bande.frameWidth());
}

int CompteCaches(DFrameChevronnable const & bande)
{
    int caches = 0;
    for (int i = 0; i < bande.layout()->count(); ++i)
        caches += bande.PreteWidgetA(i) && !bande.WidgetEstVisible(i);
    return caches;
}

QMenu * PreteMenu(DFrameChevronnable const & bande)
{
    // The tools have buttons of their own, within them.
    return bande.findChild<DBoutonSansFleche *>(QString(), Qt::FindDirectChildrenOnly)->menu();
}

} // namespace

PageChevron::PageChevron(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Chevron")),
        TraductionGalerie(TexteGalerie(
            "Des bandes qui ne passent jamais à la ligne. Ce qui n’a plus de place se trouve dans "
            "le menu du chevron, derrière le dernier élément visible.")));
    disposition->addWidget(CreeReglage());
    disposition->addWidget(CreeOutils());
    disposition->addWidget(CreeJours());
    disposition->addWidget(CreeTrace());
    disposition->addStretch(1);
    Branche();
    PriseLargeur(maLargeur->value());
}

QWidget * PageChevron::CreeReglage()
{
    auto * const cadre = new QWidget;
    auto * const disposition = new QHBoxLayout(cadre);
    disposition->setContentsMargins({});
    maLargeur = new QSlider(Qt::Horizontal);
    maLargeur->setObjectName(u"largeurBande"_s);
    maLargeur->setRange(kLargeurMin, kLargeurMax);
    maLargeur->setValue(kLargeurInitiale);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("Largeur des &bandes")));
    etiquette->setBuddy(maLargeur);
    disposition->addWidget(etiquette);
    disposition->addWidget(maLargeur, 1);
    return cadre;
}

QWidget * PageChevron::CreeOutils()
{
    auto * const groupe =
        new QGroupBox(TraductionGalerie(TexteGalerie("Des outils qui perdent d’abord leur texte")));
    mesOutils = new DFrameChevronnable(groupe);
    mesOutils->setSpacing(0); // with any, the spacer leaves the last tools without room
    CreeTexte();
    RemplisOutils();
    AjusteHauteur(*mesOutils);
    monCompte = new QLabel;
    monCompte->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
    QMenu & menuDuChevron = *PreteMenu(*mesOutils);
    monApercu = new ApercuFenetre(
        TraductionGalerie(TexteGalerie("Le menu du chevron")), menuDuChevron,
        // An empty menu asks for no size, and would keep the large one that windows begin with.
        [&menuDuChevron] {
            return menuDuChevron.sizeHint().expandedTo({1, 1});
        });

    auto * const dessous = new QHBoxLayout;
    dessous->addWidget(monTexte, 1, Qt::AlignTop);
    auto * const menu = new QVBoxLayout;
    menu->addWidget(monCompte);
    menu->addWidget(monApercu);
    menu->addStretch();
    dessous->addLayout(menu);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addLayout(CreeRangee(mesOutils));
    disposition->addLayout(dessous);
    return groupe;
}

void PageChevron::CreeTexte()
{
    monTexte = new QTextEdit;
    monTexte->setObjectName(u"texteChevron"_s);
    monTexte->setAccessibleName(TraductionGalerie(TexteGalerie("Texte")));
    monTexte->setTabChangesFocus(true);
    monTexte->setFixedHeight(kHauteurTexte);
    monTexte->setPlainText(TraductionGalerie(
        TexteGalerie("Les outils agissent sur ce qui est sélectionné ici, que l’on clique dans la "
                     "bande ou dans le menu du chevron.")));
    monTexte->moveCursor(QTextCursor::Start);
    monTexte->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    monTexte->moveCursor(QTextCursor::NextWord, QTextCursor::KeepAnchor);
    monTexte->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
}

void PageChevron::RemplisOutils()
{
    auto const bascule = [this](QString const & nom, QString const & icone, ChaineLocalisable texte,
                                void (*change)(QTextEdit &, bool)) {
        QAction * const action = CreeAction(nom, icone, TraductionGalerie(texte));
        action->setCheckable(true);
        connect(action, &QAction::triggered, monTexte,
                [texteEdit = monTexte, change](bool actif) { change(*texteEdit, actif); });
        AjouteOutil(*action);
    };
    bascule(u"gras"_s, u":/Images/Bold.svg"_s, TexteGalerie("Gras"),
            [](QTextEdit & texte, bool actif) {
                texte.setFontWeight(actif ? QFont::Bold : QFont::Normal);
            });
    bascule(u"italique"_s, u":/Images/Italic.svg"_s, TexteGalerie("Italique"),
            [](QTextEdit & texte, bool actif) { texte.setFontItalic(actif); });
    bascule(u"souligne"_s, u":/images/outilSouligne.svg"_s, TexteGalerie("Souligné"),
            [](QTextEdit & texte, bool actif) { texte.setFontUnderline(actif); });
    AjouteOutil(*CreeCasse());
    connect(AjouteEffet(u"agrandit"_s, u":/Images/PolicesPlus.svg"_s, TexteGalerie("Agrandir")),
            &QAction::triggered, this, &PageChevron::PriseAgrandit, Qt::UniqueConnection);
    connect(AjouteEffet(u"reduit"_s, u":/Images/PolicesMoins.svg"_s, TexteGalerie("Réduire")),
            &QAction::triggered, this, &PageChevron::PriseReduit, Qt::UniqueConnection);
    mesOutils->addSpacer();
    connect(AjouteEffet(u"annule"_s, u":/images/outilAnnule.svg"_s, TexteGalerie("Annuler")),
            &QAction::triggered, monTexte, &QTextEdit::undo, Qt::UniqueConnection);
    connect(AjouteEffet(u"retablit"_s, u":/images/outilRetablit.svg"_s, TexteGalerie("Rétablir")),
            &QAction::triggered, monTexte, &QTextEdit::redo, Qt::UniqueConnection);
}

QAction * PageChevron::CreeAction(QString const & nom, QString const & icone, QString const & texte)
{
    auto * const action = new QAction(QIcon(icone), texte, this);
    action->setObjectName(nom);
    return action;
}

// The letters of what is selected, as small or capital ones.
QAction * PageChevron::CreeCasse()
{
    auto * const menu = new QMenu(this);
    std::pair<ChaineLocalisable, QFont::Capitalization> const casses[] = {
        {TexteGalerie("Majuscules"), QFont::AllUppercase},
        {TexteGalerie("Minuscules"), QFont::AllLowercase},
        {TexteGalerie("Comme au clavier"), QFont::MixedCase},
    };
    for (auto const & [texte, casse] : casses) {
        QTextCharFormat format;
        format.setFontCapitalization(casse);
        connect(menu->addAction(TraductionGalerie(texte)), &QAction::triggered, monTexte,
                [texteEdit = monTexte, format] { texteEdit->mergeCurrentCharFormat(format); });
    }
    QAction * const action = CreeAction(u"casse"_s, u":/images/outilCasse.svg"_s,
                                        TraductionGalerie(TexteGalerie("Casse")));
    action->setMenu(menu);
    return action;
}

QAction * PageChevron::AjouteEffet(QString const & nom, QString const & icone,
                                   ChaineLocalisable texte)
{
    QAction * const action = CreeAction(nom, icone, TraductionGalerie(texte));
    AjouteOutil(*action);
    return action;
}

void PageChevron::AjouteOutil(QAction & action)
{
    mesOutils->addWidget(new OutilDeBande(action));
}

QWidget * PageChevron::CreeJours()
{
    auto * const groupe =
        new QGroupBox(TraductionGalerie(TexteGalerie("Des mots, séparés par un espacement")));
    mesJours = new DFrameChevronnable(groupe);
    mesJours->setFrameShape(QFrame::StyledPanel);
    mesJours->setSpacing(kEspacementJours);
    for (int jour = 1; jour <= 7; ++jour) {
        QString const nom = locale().standaloneDayName(jour);
        mesJours->addWidget(new OutilDeBande(*CreeAction(u"jour%1"_s.arg(jour), {}, nom)));
    }
    AjusteHauteur(*mesJours);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addLayout(CreeRangee(mesJours));
    return groupe;
}

QWidget * PageChevron::CreeTrace()
{
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Signaux")));
    return EtiquetteTrace(*maTrace, TraductionGalerie(TexteGalerie("&Signaux")), kHauteurTrace);
}

void PageChevron::Branche()
{
    connect(maLargeur, &QSlider::valueChanged, this, &PageChevron::PriseLargeur,
            Qt::UniqueConnection);
    connect(monTexte, &QTextEdit::currentCharFormatChanged, this, &PageChevron::PriseFormatChangay,
            Qt::UniqueConnection);
    connect(mesOutils, &DFrameChevronnable::SignalChangeForme, this, &PageChevron::PriseForme,
            Qt::UniqueConnection);
    connect(qobject_cast<LayoutHorizontalAvecChevron *>(mesOutils->layout()),
            &LayoutHorizontalAvecChevron::SignalMiseEnPlace, this, &PageChevron::PriseMiseEnPlace,
            Qt::UniqueConnection);
    maTrace->Suis(mesOutils, &DFrameChevronnable::SignalChangeForme, u"SignalChangeForme"_s);
    maTrace->Suis(mesJours, &DFrameChevronnable::SignalChangeForme, u"SignalChangeForme"_s);
    for (QAction * const action : findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly))
        maTrace->Suis(action, &QAction::triggered, u"triggered"_s);
}

void PageChevron::PriseForme(int toutEstVisible)
{
    for (QWidget * const outil : mesOutils->PreteListeWidgets())
        static_cast<OutilDeBande *>(outil)->MetsCompact(!toutEstVisible);
}

void PageChevron::PriseMiseEnPlace()
{
    int const caches = CompteCaches(*mesOutils);
    monCompte->setText(TraductionPlurielGalerie(
        TextePlurielGalerie("{1} outil sous le chevron", "{1} outils sous le chevron"), caches));
    mesOutils->MetAJourMenu();
    monApercu->setVisible(caches > 0); // an empty menu has no size
    monApercu->Actualise();
}

void PageChevron::PriseLargeur(int pourCent)
{
    for (DFrameChevronnable * const bande : {mesOutils, mesJours}) {
        auto * const rangee =
            qobject_cast<QBoxLayout *>(bande->parentWidget()->layout()->itemAt(0)->layout());
        rangee->setStretch(0, pourCent);
        rangee->setStretch(1, kLargeurMax - pourCent);
    }
}

void PageChevron::PriseAgrandit()
{
    ChangeTaille(kPas);
}

void PageChevron::PriseReduit()
{
    ChangeTaille(-kPas);
}

void PageChevron::PriseFormatChangay(QTextCharFormat const & format)
{
    findChild<QAction *>(u"gras"_s)->setChecked(format.fontWeight() > QFont::Normal);
    findChild<QAction *>(u"italique"_s)->setChecked(format.fontItalic());
    findChild<QAction *>(u"souligne"_s)->setChecked(format.fontUnderline());
}

void PageChevron::ChangeTaille(double points)
{
    QFont const police = monTexte->currentCharFormat().font();
    double const taille = police.pointSizeF() > 0.0 ? police.pointSizeF() : kTailleInitiale;
    monTexte->setFontPointSize(std::max(kTailleMin, taille + points));
}
