// galerie/HoteJetons.cpp
#include "HoteJetons.h"

#include "TraductionGalerie.h"

#include "editing/DComboJetonable.h"
#include "lists/ListeChoixFlottante.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QStandardItem>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int kRoleCategorie = Qt::UserRole; // an index of DonneCategories
constexpr int kMargesListe = 30;             // logical pixels, of a row and its list
} // namespace

QList<CategorieDeMots> const & HoteJetons::DonneCategories()
{
    static QList<CategorieDeMots> const categories = {
        {TexteGalerie("Nom commun"),
         TexteGalerie("Un être, une chose ou une idée, comme <i>arbre</i> ou <i>courage</i>"),
         {u"arbre"_s, u"chemin"_s, u"courage"_s, u"table"_s}},
        {TexteGalerie("Nom propre"),
         TexteGalerie("Le nom d’une personne ou d’un lieu, comme <i>Marie</i> ou <i>Loire</i>"),
         {u"Loire"_s, u"Marie"_s, u"Québec"_s}},
        {TexteGalerie("Verbe"),
         TexteGalerie("Ce que l’on fait ou ce que l’on est, comme <i>courir</i> ou <i>être</i>"),
         {u"courir"_s, u"être"_s, u"lire"_s, u"penser"_s}},
        {TexteGalerie("Adjectif"),
         TexteGalerie("Ce qui décrit un nom, comme <i>clair</i> ou <i>vaste</i>"),
         {u"clair"_s, u"lent"_s, u"vaste"_s}},
        {TexteGalerie("Adverbe"),
         TexteGalerie("Ce qui précise un verbe, comme <i>demain</i> ou <i>souvent</i>"),
         {u"demain"_s, u"souvent"_s, u"très"_s}},
        {TexteGalerie("Locution nominale, verbale ou adverbiale"),
         TexteGalerie("Plusieurs mots qui n’en font qu’un, comme <i>pomme de terre</i>"),
         {u"pomme de terre"_s, u"prendre part"_s, u"tout à coup"_s}},
    };
    return categories;
}

HoteJetons::HoteJetons(DComboJetonable & combo)
    : QObject(&combo)
    , monCombo(combo)
    , maListe(std::make_unique<ListeChoixFlottante>(&monInterface, false, &combo))
{
    combo.setInsertPolicy(QComboBox::NoInsert); // the list has what it has
    combo.installEventFilter(this);
    QString const nom = TraductionGalerie(TexteGalerie("Catégories proposées"));
    maListe->setAccessibleName(nom);
    maListe->PreteListeChoix()->setAccessibleName(nom);
    Branche();
}

HoteJetons::~HoteJetons() = default;

void HoteJetons::Choisis(int categorie)
{
    CategorieDeMots const & choisie = DonneCategories().at(categorie);
    maCategorie = categorie; // before the signals of the field
    monCombo.PrendsTexteJeton(TraductionGalerie(choisie.nom),
                              TraductionGalerie(choisie.description));
}

int HoteJetons::DonneCategorie() const
{
    return monCombo.UnJetonEstActif() ? maCategorie : -1;
}

void HoteJetons::PreparePourApercu()
{
    if (maListe->isVisible())
        return;
    // The list sizes itself to its rows when it is shown.
    maListe->setAttribute(Qt::WA_DontShowOnScreen);
    Propose({});
    maListe->CacheToi();
    maListe->setAttribute(Qt::WA_DontShowOnScreen, false);
}

bool HoteJetons::eventFilter(QObject * objet, QEvent * evenement)
{
    QEvent::Type const type = evenement->type();
    if (objet == &monCombo && type == QEvent::Show) {
        monCombo.window()->installEventFilter(this); // it is known by now
    } else if (objet == &monCombo && type == QEvent::FocusOut) {
        // Some systems activate a window that is clicked, whatever it asks for.
        if (!maListe->CeQObjectMAppartient(QApplication::activeWindow()))
            maListe->CacheToi();
    } else if (objet == monCombo.window() && (type == QEvent::Move || type == QEvent::Resize)) {
        Q_EMIT monInterface.SignalParentDeplacay();
    }
    return QObject::eventFilter(objet, evenement);
}

void HoteJetons::Branche()
{
    connect(&monCombo, &DComboJetonable::SignalShowPopup, this, &HoteJetons::PriseDemande,
            Qt::UniqueConnection);
    connect(&monCombo, &DComboJetonable::SignalClosePopup, maListe.get(),
            &ListeChoixFlottante::CacheToi, Qt::UniqueConnection);
    connect(monCombo.lineEdit(), &QLineEdit::textEdited, this, &HoteJetons::PriseTexteEditay,
            Qt::UniqueConnection);
    connect(maListe.get(), &ListeChoixFlottante::SignalSelectionListeChoix, this,
            &HoteJetons::PriseSelection, Qt::UniqueConnection);
}

void HoteJetons::Propose(QString const & partie)
{
    QList<QList<QStandardItem *>> rangees;
    QFontMetrics const mesures = maListe->PreteListeChoix()->fontMetrics();
    int largeur = 0; // the list is as wide as its longest name, unless the field is wider
    for (int categorie = 0; categorie < DonneCategories().size(); ++categorie) {
        CategorieDeMots const & decrite = DonneCategories().at(categorie);
        QString const nom = TraductionGalerie(decrite.nom);
        if (!nom.contains(partie, Qt::CaseInsensitive))
            continue;
        largeur = std::max(largeur, mesures.horizontalAdvance(nom));
        auto * const item = new QStandardItem(nom);
        item->setToolTip(TraductionGalerie(decrite.description));
        item->setData(categorie, kRoleCategorie);
        // Return leaves a word as it was typed, unless a category was picked out by the arrows.
        maListe->MetsItemSelectionnableParDefaut(item, false);
        rangees.append({item});
    }
    maListe->MetsLargeurMinimum(std::max(monCombo.width(), largeur + kMargesListe));
    maListe->ActualiseListeChoix(rangees);
}

void HoteJetons::PriseDemande()
{
    if (maListe->isVisible())
        maListe->CacheToi();
    else
        Propose({});
}

void HoteJetons::PriseTexteEditay(QString const & texte)
{
    if (texte.isEmpty())
        maListe->CacheToi();
    else
        Propose(texte);
}

void HoteJetons::PriseSelection(QList<std::shared_ptr<QStandardItem>> const & items)
{
    maListe->CacheToi();
    if (!items.isEmpty())
        Choisis(items.first()->data(kRoleCategorie).toInt());
}
