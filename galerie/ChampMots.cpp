// galerie/ChampMots.cpp
#include "ChampMots.h"

#include "MotsFrancais.h"
#include "TraductionGalerie.h"

#include "lists/ListeChoixFlottante.h"

#include <QApplication>
#include <QEvent>
#include <QLocale>
#include <QStandardItem>
#include <QTreeView>

namespace {

constexpr int kPropositions = 10;      // at once
constexpr int kPropositionsMax = 30;   // when one asks for more
constexpr int kRoleMot = Qt::UserRole; // no word: the row that tells how many more there are

} // namespace

ChampMots::ChampMots(MotsFrancais & mots, QWidget * parent)
    : QLineEdit(parent)
    , mesMots(mots)
    , maListe(std::make_unique<ListeChoixFlottante>(&monInterface, false, this))
{
    setClearButtonEnabled(true);
    QString const nom = TraductionGalerie(TexteGalerie("Mots proposés"));
    maListe->setAccessibleName(nom);
    maListe->PreteListeChoix()->setAccessibleName(nom);
    Branche();
}

ChampMots::~ChampMots() = default;

void ChampMots::PreparePourApercu(QString const & debut)
{
    if (maListe->isVisible())
        return;
    // The list sizes itself to its rows when it is shown.
    maListe->setAttribute(Qt::WA_DontShowOnScreen);
    Propose(debut, kPropositions);
    maListe->CacheToi();
    maListe->setAttribute(Qt::WA_DontShowOnScreen, false);
}

bool ChampMots::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == window() &&
        (evenement->type() == QEvent::Move || evenement->type() == QEvent::Resize))
        Q_EMIT monInterface.SignalParentDeplacay();
    return QLineEdit::eventFilter(objet, evenement);
}

void ChampMots::showEvent(QShowEvent * evenement)
{
    QLineEdit::showEvent(evenement);
    window()->installEventFilter(this); // it is known by now
}

void ChampMots::focusOutEvent(QFocusEvent * evenement)
{
    QLineEdit::focusOutEvent(evenement);
    // Some systems activate a window that is clicked, whatever it asks for.
    if (!maListe->CeQObjectMAppartient(QApplication::activeWindow()))
        maListe->CacheToi();
}

void ChampMots::Branche()
{
    connect(this, &QLineEdit::textEdited, this, &ChampMots::PriseTexteEditay, Qt::UniqueConnection);
    connect(this, &QLineEdit::returnPressed, this, &ChampMots::PriseRetour, Qt::UniqueConnection);
    connect(maListe.get(), &ListeChoixFlottante::SignalSelectionListeChoix, this,
            &ChampMots::PriseSelection, Qt::UniqueConnection);
}

void ChampMots::Propose(QString const & debut, int combien)
{
    QList<QList<QStandardItem *>> rangees;
    for (QString const & mot : mesMots.Propose(debut, combien)) {
        auto * const item = new QStandardItem(mot);
        item->setData(mot, kRoleMot);
        rangees.append({item});
    }
    int const autres = mesMots.Compte(debut) - static_cast<int>(rangees.size());
    if (autres > 0) {
        rangees.append({new QStandardItem(TraductionPlurielGalerie(
            TextePlurielGalerie("… et {1} autre", "… et {1} autres"), autres))});
    }
    maListe->MetsLargeurMinimum(width());
    maListe->ActualiseListeChoix(rangees);
}

void ChampMots::PriseTexteEditay(QString const & texte)
{
    Propose(texte, kPropositions);
}

void ChampMots::PriseSelection(QList<std::shared_ptr<QStandardItem>> const & items)
{
    QString const mot = items.isEmpty() ? QString() : items.first()->data(kRoleMot).toString();
    if (mot.isEmpty()) {
        Propose(text(), kPropositionsMax);
        return;
    }
    setText(mot);
    maListe->CacheToi();
    Q_EMIT SignalMotChoisi(mot);
}

void ChampMots::PriseRetour()
{
    if (!text().isEmpty())
        Q_EMIT SignalMotChoisi(text());
}
