// galerie/CadrePage.cpp
#include "CadrePage.h"

#include "Pages.h"
#include "TraductionGalerie.h"

#include <QApplication>
#include <QVBoxLayout>

#include <utility>

CadrePage::CadrePage(int page, ThemeGalerie & theme, SaisiesPage saisies)
    : maPage(page)
    , monTheme(theme)
    , mesSaisies(std::move(saisies))
{
    (new QVBoxLayout(this))->setContentsMargins({});
    connect(qApp, &QApplication::focusChanged, this, &CadrePage::PriseFocusChangay,
            Qt::UniqueConnection);
}

CadrePage::~CadrePage()
{
    // The focus goes elsewhere when a window of the page does, and nobody is here any more to
    // follow.
    disconnect(qApp, nullptr, this, nullptr);
}

QString CadrePage::DonneTitre() const
{
    return TraductionGalerie(DonnePages().at(maPage).titre);
}

void CadrePage::Construis()
{
    if (monWidget)
        return;
    monWidget = DonnePages().at(maPage).cree(monTheme);
    layout()->addWidget(monWidget);
    mesDefauts = LisSaisies(*monWidget);
    RemetsSaisies(*monWidget, mesSaisies);
    monWidget->show(); // the layout would do it later: too late for the focus
}

void CadrePage::Defais()
{
    if (!monWidget)
        return;
    mesSaisies = DonneSaisies();
    delete monWidget;
}

SaisiesPage CadrePage::DonneSaisies() const
{
    return monWidget ? OteTextesParDefaut(LisSaisies(*monWidget), mesDefauts) : mesSaisies;
}

void CadrePage::ReprendsFocus()
{
    QWidget * choisi = monDernierFocus;
    // The chain is a circle through the whole window.
    for (QWidget * suivant = nextInFocusChain(); choisi == nullptr && suivant != this;
         suivant = suivant->nextInFocusChain())
        if (isAncestorOf(suivant) && (suivant->focusPolicy() & Qt::TabFocus) != 0 &&
            suivant->isEnabled() && suivant->isVisibleTo(this))
            choisi = suivant;
    if (choisi != nullptr)
        choisi->setFocus(Qt::OtherFocusReason);
}

void CadrePage::PriseFocusChangay(QWidget *, QWidget * nouveau)
{
    if (nouveau != nullptr && isAncestorOf(nouveau))
        monDernierFocus = nouveau;
}
