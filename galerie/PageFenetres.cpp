// galerie/PageFenetres.cpp
#include "PageFenetres.h"

#include "Pages.h"
#include "TexteCellule.h"
#include "TraductionGalerie.h"

#include "desktop/RoutinesFenetre.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Columns
enum
{
    kTitre,
    kClasse,
    kProgramme,
    kEtat,
    kRole,
};

struct Colonne
{
    ChaineLocalisable titre;
    int largeur; // logical pixels; the last one takes the rest
};

constexpr Colonne kColonnes[] = {
    {TexteGalerie("Titre"), 210}, {TexteGalerie("Classe"), 110}, {TexteGalerie("Programme"), 160},
    {TexteGalerie("État"), 170},  {TexteGalerie("Rôle"), 0},
};

QString DonneNom(FenetreDuBureau const & fenetre)
{
    if (!fenetre.titre.isEmpty())
        return fenetre.titre;
    return fenetre.classe.isEmpty() ? TraductionGalerie(TexteGalerie("Sans titre"))
                                    : fenetre.classe;
}

QString DonneProgramme(FenetreDuBureau const & fenetre)
{
    if (fenetre.processus == 0)
        return {};
    UniChaine const numero(QString::number(fenetre.processus)); // a name rather than a number
    if (fenetre.programme.isEmpty())
        return numero;
    return TraductionGalerie(TexteGalerie("{1} ({2})"), {UniChaine(fenetre.programme), numero});
}

struct Mention
{
    bool vraie;
    ChaineLocalisable texte;
};

QString Enumere(std::initializer_list<Mention> mentions)
{
    QStringList textes;
    for (Mention const & mention : mentions)
        if (mention.vraie)
            textes.append(TraductionGalerie(mention.texte));
    return textes.join(u", "_s);
}

QString DonneEtat(FenetreDuBureau const & fenetre)
{
    return Enumere({
        {fenetre.gelee, TexteGalerie("ne répond plus")},
        {!fenetre.visible, TexteGalerie("cachée")},
        {fenetre.iconique, TexteGalerie("réduite")},
        {fenetre.visible && !fenetre.iconique, TexteGalerie("ouverte")},
        {fenetre.translucide, TexteGalerie("translucide")},
        {fenetre.outil, TexteGalerie("fenêtre-outil")},
        {fenetre.toujoursDevant, TexteGalerie("toujours devant")},
    });
}

QString DonneRole(FenetreDuBureau const & fenetre)
{
    return Enumere({
        {fenetre.estTexteur, TexteGalerie("éditeur de texte")},
        {fenetre.estAvantPlan, TexteGalerie("au premier plan")},
        {fenetre.estNotre, TexteGalerie("de la galerie")},
    });
}

void MontreNom(QLabel & etiquette, QList<FenetreDuBureau> const & fenetres,
               bool FenetreDuBureau::*role)
{
    auto const trouvay = std::find_if(fenetres.begin(), fenetres.end(),
                                      [role](auto const & fenetre) { return fenetre.*role; });
    etiquette.setText(trouvay == fenetres.end() ? TraductionGalerie(TexteGalerie("Aucune"))
                                                : DonneNom(*trouvay));
}

} // namespace

PageFenetres::PageFenetres(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition =
        CreeMiseEnPage(this, TraductionGalerie(TexteGalerie("Fenêtres")),
                       TraductionGalerie(TexteGalerie(
                           "Les fenêtres de tous les programmes, de la plus haute à la plus basse, "
                           "et celle que la "
                           "bibliothèque tient pour l’éditeur de texte de l’utilisateur.")));
    mesVues = new QStackedWidget;
    mesVues->addWidget(CreeListe());
    mesVues->addWidget(CreeAbsence());
    disposition->addLayout(CreeResume());
    disposition->addWidget(mesVues, 1);
    disposition->addLayout(CreeBoutons());
    Branche();
    Actualise();
}

bool PageFenetres::event(QEvent * evenement)
{
    bool const traitay = QWidget::event(evenement);
    if (evenement->type() == QEvent::WindowActivate ||
        evenement->type() == QEvent::WindowDeactivate)
        Actualise();
    return traitay;
}

void PageFenetres::showEvent(QShowEvent * evenement)
{
    QWidget::showEvent(evenement);
    Actualise();
}

QLayout * PageFenetres::CreeResume()
{
    auto * const formulaire = new QFormLayout;
    monAvantPlan = new QLabel;
    monAvantPlan->setObjectName(u"fenetreAvantPlan"_s);
    monTexteur = new QLabel;
    monTexteur->setObjectName(u"fenetreTexteur"_s);
    for (QLabel * const etiquette : {monAvantPlan, monTexteur})
        etiquette->setTextFormat(Qt::PlainText); // the titles are those of other programs
    formulaire->addRow(TraductionGalerie(TexteGalerie("Fenêtre au premier plan")), monAvantPlan);
    formulaire->addRow(TraductionGalerie(TexteGalerie("Éditeur de texte")), monTexteur);
    return formulaire;
}

QWidget * PageFenetres::CreeListe()
{
    maTable = new QTableWidget(0, static_cast<int>(std::size(kColonnes)));
    maTable->setAccessibleName(TraductionGalerie(TexteGalerie("Fenêtres")));
    QStringList titres;
    for (Colonne const & colonne : kColonnes) {
        if (colonne.largeur > 0)
            maTable->setColumnWidth(static_cast<int>(titres.size()), colonne.largeur);
        titres.append(TraductionGalerie(colonne.titre));
    }
    maTable->setHorizontalHeaderLabels(titres);
    maTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    maTable->setSelectionMode(QAbstractItemView::SingleSelection);
    PrepareTable(*maTable);
    maTable->horizontalHeader()->setStretchLastSection(true);

    auto * const liste = new QWidget;
    auto * const disposition = new QVBoxLayout(liste);
    disposition->setContentsMargins({});
    disposition->addWidget(maTable, 1);
    disposition->addWidget(new TexteCellule(maTable));
    return liste;
}

QWidget * PageFenetres::CreeAbsence()
{
    auto * const absence = new QLabel(TraductionGalerie(
        TexteGalerie("Il n’y a pas de fenêtres à voir ici : ce système ne montre pas celles des "
                     "autres programmes.")));
    absence->setObjectName(u"sansFenetres"_s);
    absence->setAlignment(Qt::AlignCenter);
    absence->setFrameShape(QFrame::StyledPanel); // where the list would be
    absence->setWordWrap(true);
    return absence;
}

QLayout * PageFenetres::CreeBoutons()
{
    auto * const boutons = new QHBoxLayout;
    mesCachees =
        new QCheckBox(TraductionGalerie(TexteGalerie("Montrer aussi les fenêtres &cachées")));
    mesCachees->setObjectName(u"cachees"_s);
    monPassageDevant = new QPushButton(TraductionGalerie(TexteGalerie("Mettre au &premier plan")));
    monPassageDevant->setObjectName(u"premierPlan"_s);
    monActualisation = new QPushButton(TraductionGalerie(TexteGalerie("&Actualiser")));
    monActualisation->setObjectName(u"actualise"_s);
    boutons->addWidget(mesCachees);
    boutons->addStretch();
    boutons->addWidget(monPassageDevant);
    boutons->addWidget(monActualisation);
    return boutons;
}

void PageFenetres::Branche()
{
    connect(mesCachees, &QCheckBox::toggled, this, &PageFenetres::Actualise, Qt::UniqueConnection);
    connect(monActualisation, &QPushButton::clicked, this, &PageFenetres::Actualise,
            Qt::UniqueConnection);
    connect(monPassageDevant, &QPushButton::clicked, this, &PageFenetres::MetsDevant,
            Qt::UniqueConnection);
    connect(maTable, &QTableWidget::itemActivated, this, &PageFenetres::MetsDevant,
            Qt::UniqueConnection);
    connect(maTable, &QTableWidget::currentCellChanged, this, &PageFenetres::PriseSelectionChangay,
            Qt::UniqueConnection);
}

void PageFenetres::Actualise()
{
    FenetreDuBureau const * const courante = PreteCourante();
    HWND const poignee = courante ? courante->poignee : nullptr;
    int const colonne = std::max(maTable->currentColumn(), 0);
    mesFenetres = ListeFenetresDuBureau(mesCachees->isChecked());
    maTable->setRowCount(static_cast<int>(mesFenetres.size()));
    int ligneCourante = -1;
    for (int ligne = 0; ligne < maTable->rowCount(); ++ligne) {
        RemplisLigne(ligne, mesFenetres.at(ligne));
        if (poignee && mesFenetres.at(ligne).poignee == poignee)
            ligneCourante = ligne;
    }
    maTable->setCurrentCell(ligneCourante, ligneCourante < 0 ? -1 : colonne); // the same window
    MontreNom(*monAvantPlan, mesFenetres, &FenetreDuBureau::estAvantPlan);
    MontreNom(*monTexteur, mesFenetres, &FenetreDuBureau::estTexteur);
    mesVues->setCurrentIndex(BureauEstVisible() ? 0 : 1);
    mesCachees->setEnabled(BureauEstVisible());
    PriseSelectionChangay();
}

void PageFenetres::RemplisLigne(int ligne, FenetreDuBureau const & fenetre)
{
    QString const textes[] = {DonneNom(fenetre), fenetre.classe, DonneProgramme(fenetre),
                              DonneEtat(fenetre), DonneRole(fenetre)};
    for (int colonne = kTitre; colonne <= kRole; ++colonne) {
        auto * const element = new QTableWidgetItem(textes[colonne]);
        element->setToolTip(textes[colonne].toHtmlEscaped()); // the cell cuts long texts
        maTable->setItem(ligne, colonne, element);
    }
}

FenetreDuBureau const * PageFenetres::PreteCourante() const
{
    int const ligne = maTable->currentRow();
    return ligne >= 0 && ligne < mesFenetres.size() ? &mesFenetres.at(ligne) : nullptr;
}

void PageFenetres::PriseSelectionChangay()
{
    monPassageDevant->setEnabled(PreteCourante() != nullptr);
}

void PageFenetres::MetsDevant()
{
    FenetreDuBureau const * const courante = PreteCourante();
    if (!courante)
        return;
    RoutinesFenetre::MetsFenetreEnAvantPlanEtActive(courante->poignee, true);
    Actualise();
}
