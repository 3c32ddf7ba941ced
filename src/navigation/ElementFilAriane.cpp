// navigation/ElementFilAriane.cpp
#include "navigation/ElementFilAriane.h"

#include "foundation/Layouts.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QSvgRenderer>
#include <QSvgWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTailleIcone(16, 16); // logical pixels

struct Apparence
{
    QString icone;
    QString nomTexte; // what the application's sheet sees
};

Apparence DonneApparence(ElementFilAriane::eEtat etat)
{
    switch (etat) {
    case ElementFilAriane::kBienvenue:
        return {u":/Images/iconeArianeActif.svg"_s, u"ArianeTexteBienvenue"_s};
    case ElementFilAriane::kAVenir:
        return {u":/Images/iconeArianeAffaire.svg"_s, u"ArianeTexteInactif"_s};
    case ElementFilAriane::kEnCours:
        return {u":/Images/iconeArianeEnCours.svg"_s, u"ArianeTexteActif"_s};
    case ElementFilAriane::kFait:
        return {u":/Images/iconeArianeFait.svg"_s, u"ArianeTexteInactif"_s};
    }
    return {};
}

void MontreIcone(QSvgWidget & icone, QString const & fichier)
{
    // Qt would warn of a file that is not there; no document draws as little.
    if (QFile::exists(fichier))
        icone.load(fichier);
    else
        icone.load(QByteArray());
    // Each load brings a new document, which fills the widget.
    icone.renderer()->setAspectRatioMode(Qt::KeepAspectRatio);
}

} // namespace

ElementFilAriane::ElementFilAriane(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = new QHBoxLayout;
    RoutinesGeneralesQt::EnleveMargesDuLayout(disposition);
    disposition->setSpacing(0);

    monIcone = new QSvgWidget;
    monTexte = new QLabel;
    monTexte->setFocusPolicy(Qt::TabFocus); // the keyboard reaches each marker
    disposition->addWidget(monIcone);
    disposition->addWidget(monTexte);
    setLayout(disposition);

    MetsEtat(kAVenir);
    MetsTailleIcone(kTailleIcone);
}

void ElementFilAriane::MetsEtat(ElementFilAriane::eEtat etat)
{
    Apparence const apparence = DonneApparence(etat);
    if (!apparence.icone.isEmpty()) {
        MontreIcone(*monIcone, apparence.icone);
        monTexte->setObjectName(apparence.nomTexte);
    }
    monTexte->style()->unpolish(monTexte);
    monTexte->style()->polish(monTexte);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void ElementFilAriane::PrendChaine(QString texte)
{
    monTexte->setText(texte);
}

void ElementFilAriane::MetsTailleIcone(QSize taille)
{
    monIcone->setFixedSize(taille);
}

void ElementFilAriane::CacheIcone(bool cachay)
{
    monIcone->setHidden(cachay);
}
