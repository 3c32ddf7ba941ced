// lists/ToolTipComboBox.cpp
#include "lists/ToolTipComboBox.h"

#include "foundation/TraductionGui.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeurCombo = 100; // pixels

} // namespace

ToolTipComboBox::ToolTipComboBox(QWidget * parent)
    : DMenuAction(parent)
    , monLayoutPrincipal(new QVBoxLayout)
{
    CreeBouton();
    PreteGrille()->addLayout(monLayoutPrincipal, 0, 0);
}

ToolTipComboBox::~ToolTipComboBox()
{
    for (auto const & [id, combo] : mesCombos) {
        if (combo) // it goes after this destructor, and would tell of it
            disconnect(combo, nullptr, this, nullptr);
    }
}

void ToolTipComboBox::AjouterComboBox(int id, QString const & libelle, QComboBox * combo)
{
    if (!combo)
        return;
    for (auto it = mesCombos.begin(); it != mesCombos.end();) {
        bool const remplacay = it->first == id || it->second == combo;
        if (remplacay && it->second) {
            RetireRangee(*it->second);
            it->second->setVisible(it->second == combo);
        }
        it = remplacay ? mesCombos.erase(it) : std::next(it);
    }
    mesCombos[id] = combo;
    PoseRangee(libelle, *combo);
    connect(combo, &QComboBox::currentIndexChanged, this,
            [this, id, combo] { Annonce(id, *combo); });
    connect(combo, &QComboBox::currentIndexChanged, this, &ToolTipComboBox::PriseMiseAJourBouton,
            Qt::UniqueConnection);
    connect(combo, &QObject::destroyed, this, &ToolTipComboBox::PriseComboDetruit,
            Qt::UniqueConnection);
}

void ToolTipComboBox::MetsIndexCourantComboBox(int id, int index)
{
    if (QComboBox * const combo = PreteComboBox(id))
        combo->setCurrentIndex(index);
}

QComboBox * ToolTipComboBox::PreteComboBox(int id)
{
    // Deliberate: an unknown id is remembered, without a combo box.
    return mesCombos[id];
}

int ToolTipComboBox::TrouveIndexAvecData(int id, QVariant const & donnees)
{
    QComboBox const * const combo = PreteComboBox(id);
    return combo ? combo->findData(donnees, Qt::UserRole, Qt::MatchCaseSensitive) : -1;
}

void ToolTipComboBox::resizeEvent(QResizeEvent * evenement)
{
    DMenuAction::resizeEvent(evenement);
    Q_EMIT SignalResizeEvent(evenement);
}

void ToolTipComboBox::PriseMiseAJourBouton()
{
    // Deliberate: an empty combo box, at index -1, counts as a filter that is on.
    bool const actif = std::any_of(mesCombos.cbegin(), mesCombos.cend(), [](auto const & paire) {
        return paire.second && paire.second->currentIndex() != 0;
    });
    monBoutonDesactiver->setEnabled(actif);
    Q_EMIT SignalFiltreActif(actif);
}

void ToolTipComboBox::PriseComboDetruit(QObject const * combo)
{
    for (auto & [id, autre] : mesCombos) {
        if (autre == combo)
            autre = nullptr;
    }
    PriseMiseAJourBouton();
}

void ToolTipComboBox::PriseDesactiveFiltres()
{
    // Guarded copies: a receiver may add combo boxes, delete some, or delete the pop-up.
    QList<QPointer<QComboBox>> combos;
    for (auto const & [id, combo] : mesCombos)
        combos.append(combo);
    for (QPointer<QComboBox> const & combo : std::as_const(combos)) {
        if (combo)
            combo->setCurrentIndex(0);
    }
}

void ToolTipComboBox::CreeBouton()
{
    monBoutonDesactiver = new QPushButton(TraductionGui(TexteGui("Désactiver les filtres")), this);
    monBoutonDesactiver->setObjectName(u"BoutonDesactiverFiltre"_s); // style sheets know it by this
    monBoutonDesactiver->setFlat(true);
    monBoutonDesactiver->setEnabled(false);
    auto * const rangee = new QHBoxLayout;
    rangee->addWidget(monBoutonDesactiver);
    monLayoutPrincipal->addLayout(rangee);
    connect(monBoutonDesactiver, &QPushButton::clicked, this,
            &ToolTipComboBox::PriseDesactiveFiltres, Qt::UniqueConnection);
}

void ToolTipComboBox::PoseRangee(QString const & libelle, QComboBox & combo)
{
    auto * const etiquette = new QLabel(libelle + u": "_s, this);
    etiquette->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    etiquette->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    etiquette->setBuddy(&combo);
    combo.setFixedWidth(kLargeurCombo);
    auto * const rangee = new QHBoxLayout;
    rangee->addWidget(etiquette);
    rangee->addWidget(&combo);
    monLayoutPrincipal->insertLayout(monLayoutPrincipal->count() - 1, rangee);
    connect(&combo, &QObject::destroyed, etiquette, &QObject::deleteLater, Qt::UniqueConnection);
}

void ToolTipComboBox::RetireRangee(QComboBox & combo)
{
    disconnect(&combo, nullptr, this, nullptr);
    for (int i = 0; i < monLayoutPrincipal->count(); ++i) {
        QLayout * const rangee = monLayoutPrincipal->itemAt(i)->layout();
        if (!rangee || rangee->indexOf(&combo) < 0)
            continue;
        rangee->removeWidget(&combo);
        delete rangee->itemAt(0)->widget(); // its label
        delete monLayoutPrincipal->takeAt(i);
        return;
    }
}

void ToolTipComboBox::Annonce(int id, QComboBox const & combo)
{
    Q_EMIT SignalValeurChanger(id, combo.currentIndex(), combo.currentData());
}
