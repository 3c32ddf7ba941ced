// galerie/PageTextes.cpp
#include "PageTextes.h"

#include "CatalogueAffichay.h"
#include "Langues.h"
#include "Pages.h"
#include "TexteCellule.h"
#include "TraductionGalerie.h"

#include "foundation/TraductionGui.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNombreAuDepart = 0;   // a singular in French, a plural in English
constexpr int kLargeurColonne = 150; // logical pixels
constexpr int kContexte = 1;         // column
constexpr int kLargeurContexte = 250;

// The keys of the library, those with a context first: there are few, and they show what it is for.
QList<CleCatalogue> LisCles()
{
    QList<CleCatalogue> cles = LisClesCatalogue(u":/fichiers/GUIFr.mo"_s);
    std::stable_partition(cles.begin(), cles.end(),
                          [](CleCatalogue const & cle) { return !cle.contexte.isEmpty(); });
    return cles;
}

// The record refers to the key's bytes: to be converted while the key lives.
QString Traduis(CleCatalogue const & cle, eLangue langue)
{
    auto const vue = [](QByteArray const & texte) {
        return VueTexte{texte.isNull() ? nullptr : texte.constData(),
                        static_cast<std::size_t>(texte.size())};
    };
    VueTexte const domaine{"GUI", 3};
    ContexteLocalisation const & contexte = ContexteLocalisationGui();
    if (cle.pluriel.isNull())
        return LocalisateurContextuel({vue(cle.identifiant), vue(cle.contexte), domaine}, contexte,
                                      DLocale(langue));
    return LocalisateurContextuel(
        {vue(cle.identifiant), vue(cle.pluriel), vue(cle.contexte), domaine}, 1, contexte,
        DLocale(langue));
}

} // namespace

PageTextes::PageTextes(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Textes")),
        TraductionGalerie(TexteGalerie(
            "Les messages de la bibliothèque, leurs clés et leurs traductions. Un contexte "
            "distingue deux messages de même texte.")));
    auto * const haut = new QHBoxLayout;
    monFiltre = new QLineEdit;
    monFiltre->setObjectName(u"filtreMessages"_s);
    monFiltre->setPlaceholderText(TraductionGalerie(TexteGalerie("Filtrer les messages")));
    monFiltre->setAccessibleName(monFiltre->placeholderText());
    monFiltre->setClearButtonEnabled(true);
    monCompte = new QLabel;
    haut->addWidget(monFiltre, 1);
    haut->addWidget(monCompte);
    maTable = new QTableWidget;
    maTable->setAccessibleName(TraductionGalerie(TexteGalerie("Messages")));
    RemplisTable();
    disposition->addLayout(haut);
    disposition->addWidget(maTable, 1);
    disposition->addWidget(new TexteCellule(maTable));
    disposition->addWidget(CreePluriel());

    PriseFiltreChangay(QString());
    PriseNombreChangay(kNombreAuDepart);
    connect(monFiltre, &QLineEdit::textChanged, this, &PageTextes::PriseFiltreChangay,
            Qt::UniqueConnection);
    connect(monNombre, &QSpinBox::valueChanged, this, &PageTextes::PriseNombreChangay,
            Qt::UniqueConnection);
}

void PageTextes::RemplisTable()
{
    QList<CleCatalogue> const cles = LisCles();
    QStringList titres = {TraductionGalerie(TexteGalerie("Identifiant")),
                          TraductionGalerie(TexteGalerie("Contexte"))};
    for (DescriptionLangue const & langue : DonneLangues())
        titres.append(langue.nom);
    maTable->setColumnCount(static_cast<int>(titres.size()));
    maTable->setRowCount(static_cast<int>(cles.size()));
    maTable->setHorizontalHeaderLabels(titres);
    maTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    PrepareTable(*maTable);
    maTable->horizontalHeader()->setStretchLastSection(true);
    for (int colonne = 0; colonne < maTable->columnCount(); ++colonne)
        maTable->setColumnWidth(colonne, colonne == kContexte ? kLargeurContexte : kLargeurColonne);

    int ligne = 0;
    for (CleCatalogue const & cle : cles) {
        QStringList textes = {QString::fromUtf8(cle.identifiant), QString::fromUtf8(cle.contexte)};
        for (DescriptionLangue const & langue : DonneLangues())
            textes.append(Traduis(cle, langue.langue));
        for (int colonne = 0; colonne < textes.size(); ++colonne) {
            auto * const element = new QTableWidgetItem(textes.at(colonne));
            element->setToolTip(textes.at(colonne)); // the cell cuts long messages
            maTable->setItem(ligne, colonne, element);
        }
        ++ligne;
    }
}

QWidget * PageTextes::CreePluriel()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Pluriel")));
    auto * const formulaire = new QFormLayout(groupe);
    formulaire->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    monNombre = new QSpinBox;
    monNombre->setObjectName(u"nombre"_s);
    monNombre->setRange(0, 9999);
    monNombre->setValue(kNombreAuDepart);
    formulaire->addRow(TraductionGalerie(TexteGalerie("&Nombre")), monNombre);
    for (DescriptionLangue const & langue : DonneLangues()) {
        mesPhrases.append(new QLabel);
        formulaire->addRow(langue.nom, mesPhrases.last());
    }
    return groupe;
}

void PageTextes::PriseNombreChangay(int nombre)
{
    constexpr ChaineLocalisablePluriel kMessage =
        TextePlurielGui("{1} caractère restant", "{1} caractères restants");
    for (int i = 0; i < mesPhrases.size(); ++i) {
        DLocale const locale(DonneLangues().at(i).langue);
        // The number chooses the form, and then fills its place as text.
        LocalisateurContextuel const forme(kMessage, static_cast<quint64>(nombre),
                                           ContexteLocalisationGui(), locale);
        mesPhrases.at(i)->setText(Formate(forme, {UniChaine::DonneNombreFormatay(locale, nombre)}));
    }
}

void PageTextes::PriseFiltreChangay(QString const & filtre)
{
    int compte = 0;
    for (int ligne = 0; ligne < maTable->rowCount(); ++ligne) {
        bool visible = false;
        for (int colonne = 0; colonne < maTable->columnCount(); ++colonne)
            visible = visible ||
                      maTable->item(ligne, colonne)->text().contains(filtre, Qt::CaseInsensitive);
        maTable->setRowHidden(ligne, !visible);
        compte += visible;
    }
    monCompte->setText(
        TraductionPlurielGalerie(TextePlurielGalerie("{1} message", "{1} messages"), compte));
}
