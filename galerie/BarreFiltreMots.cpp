// galerie/BarreFiltreMots.cpp
#include "BarreFiltreMots.h"

#include "TraductionGalerie.h"

#include "controls/DComboBox.h"
#include "search/DChampRecherche.h"

#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLettresDeLAlphabet = 26;

QString DonneLibelle(int filtre)
{
    switch (filtre) {
    case BarreFiltreMots::kLongueur:
        return TraductionGalerie(TexteGalerie("Longueur"));
    case BarreFiltreMots::kInitiale:
        return TraductionGalerie(TexteGalerie("Initiale"));
    default:
        return TraductionGalerie(TexteGalerie("Accents"));
    }
}

QString DonneLibelle(FiltreMots::eMode mode)
{
    switch (mode) {
    case FiltreMots::kCommencePar:
        return TraductionGalerie(TexteGalerie("Commence par"));
    case FiltreMots::kContient:
        return TraductionGalerie(TexteGalerie("Contient"));
    case FiltreMots::kFinitPar:
        break;
    }
    return TraductionGalerie(TexteGalerie("Finit par"));
}

// Of the texts that ask for the same, one has a pill.
QString DonneCleDePastille(FiltreMots::Texte const & texte)
{
    return QString::number(texte.mode) + u'/' +
           QString::fromStdString(TableMots::DonneCle(texte.texte));
}

} // namespace

BarreFiltreMots::BarreFiltreMots(QWidget * parent)
    : BarreDeFiltre(true, true, parent)
{
    CreeModes();
    CreeCombos();
    Branche();
}

BarreFiltreMots::Etat BarreFiltreMots::DonneEtat() const
{
    auto & barre = const_cast<BarreFiltreMots &>(*this); // which only looks them up
    Etat etat;
    etat.criteres.longueur = barre.PreteComboBox(kLongueur)->currentIndex();
    etat.criteres.initiale = barre.PreteComboBox(kInitiale)->currentIndex();
    etat.criteres.accent = barre.PreteComboBox(kAccent)->currentIndex();
    etat.criteres.textes = mesEpingles;
    etat.saisie = DonneSaisie();
    return etat;
}

void BarreFiltreMots::MetsEtat(Etat const & etat)
{
    while (!mesEpingles.empty())
        PrisePastille(DonneCleDePastille(mesEpingles.back()));
    MetsIndexCourantComboBox(kLongueur, etat.criteres.longueur);
    MetsIndexCourantComboBox(kInitiale, etat.criteres.initiale);
    MetsIndexCourantComboBox(kAccent, etat.criteres.accent);
    for (FiltreMots::Texte const & texte : etat.criteres.textes)
        AjouteEpingle(texte);
    PreteComboDeRecherche()->MetsModeCourant(etat.saisie.mode);
    PreteComboDeRecherche()->setEditText(etat.saisie.texte);
    Q_EMIT SignalCriteresChanges();
}

FiltreMots::Criteres BarreFiltreMots::DonneCriteres() const
{
    Etat etat = DonneEtat();
    etat.criteres.textes.push_back(etat.saisie);
    return etat.criteres;
}

QWidget & BarreFiltreMots::PreteFenetre()
{
    return *PreteComboBox(kLongueur)->window();
}

void BarreFiltreMots::CreeCombo(eFiltre filtre, QString const & nom, QString const & libelle,
                                QStringList const & choix)
{
    auto * const combo = new DComboBox;
    combo->setObjectName(nom);
    for (QString const & texte : choix)
        combo->addItem(texte, combo->count());
    AjouterComboBox(filtre, libelle, combo);
}

void BarreFiltreMots::CreeCombos()
{
    CreeCombo(kLongueur, u"longueur"_s, DonneLibelle(kLongueur),
              {TraductionGalerie(TexteGalerie("Toutes")), TraductionGalerie(TexteGalerie("1 à 5")),
               TraductionGalerie(TexteGalerie("6 à 8")), TraductionGalerie(TexteGalerie("9 à 11")),
               TraductionGalerie(TexteGalerie("12 et plus"))});
    QStringList initiales(TraductionGalerie(TexteGalerie("Toutes")));
    for (char16_t rang = 0; rang < kLettresDeLAlphabet; ++rang)
        initiales.append(QChar(u'A' + rang));
    CreeCombo(kInitiale, u"initiale"_s, DonneLibelle(kInitiale), initiales);
    CreeCombo(
        kAccent, u"accent"_s, DonneLibelle(kAccent),
        {TraductionGalerie(TexteGalerie("Tous")), TraductionGalerie(TexteGalerie("Sans")),
         TraductionGalerie(TexteGalerie("Avec")), TraductionGalerie(TexteGalerie("Aigu")),
         TraductionGalerie(TexteGalerie("Grave")), TraductionGalerie(TexteGalerie("Circonflexe")),
         TraductionGalerie(TexteGalerie("Tréma")), TraductionGalerie(TexteGalerie("Cédille"))});
}

void BarreFiltreMots::CreeModes()
{
    for (auto const mode : {FiltreMots::kCommencePar, FiltreMots::kContient, FiltreMots::kFinitPar})
        PreteComboDeRecherche()->AjouteMode(mode, DonneLibelle(mode));
    PreteComboDeRecherche()->MetsModeCourant(FiltreMots::kCommencePar);
}

void BarreFiltreMots::Branche()
{
    connect(this, &BarreDeFiltre::SignalValeurChanger, this, &BarreFiltreMots::PriseValeur,
            Qt::UniqueConnection);
    connect(this, &BarreDeFiltre::PastilleASupprimer, this, &BarreFiltreMots::PrisePastille,
            Qt::UniqueConnection);
    connect(PreteComboDeRecherche(), &QComboBox::editTextChanged, this,
            &BarreFiltreMots::SignalCriteresChanges, Qt::UniqueConnection);
    connect(PreteComboDeRecherche(), &DChampRecherche::SignalModeChangay, this,
            &BarreFiltreMots::SignalCriteresChanges, Qt::UniqueConnection);
    connect(PreteComboDeRecherche()->lineEdit(), &QLineEdit::returnPressed, this,
            &BarreFiltreMots::PriseRetour, Qt::UniqueConnection);
}

FiltreMots::Texte BarreFiltreMots::DonneSaisie() const
{
    DChampRecherche const & champ = *PreteComboDeRecherche();
    return {static_cast<FiltreMots::eMode>(champ.DonneModeCourant()), champ.currentText()};
}

void BarreFiltreMots::AjouteEpingle(FiltreMots::Texte const & texte)
{
    QString const cle = DonneCleDePastille(texte);
    auto const meme = [&cle](auto const & autre) { return DonneCleDePastille(autre) == cle; };
    if (std::any_of(mesEpingles.cbegin(), mesEpingles.cend(), meme))
        return;
    mesEpingles.push_back(texte);
    AjouterMotPastille(TraductionGalerie(TexteGalerie("{1} “{2}”"),
                                         {UniChaine(DonneLibelle(texte.mode)), texte.texte}),
                       cle, false);
    MontrePastilles();
}

void BarreFiltreMots::MontrePastilles()
{
    FiltreMots::Criteres const criteres = DonneEtat().criteres;
    AfficherListePastille(criteres != FiltreMots::Criteres());
}

// A pill never changes: that of the old choice makes way for that of the new one.
void BarreFiltreMots::PriseValeur(int filtre, int choix)
{
    SupprimerPastille(filtre);
    if (choix > 0)
        AjouterMotPastille(
            TraductionGalerie(TexteGalerie("{1} : {2}"), {UniChaine(DonneLibelle(filtre)),
                                                          PreteComboBox(filtre)->currentText()}),
            filtre, false);
    MontrePastilles();
    Q_EMIT SignalCriteresChanges();
}

void BarreFiltreMots::PrisePastille(QVariant const & donnees)
{
    if (donnees.typeId() == QMetaType::Int) {
        MetsIndexCourantComboBox(donnees.toInt(), 0); // its pill goes with the choice
        return;
    }
    std::erase_if(mesEpingles, [&donnees](FiltreMots::Texte const & texte) {
        return DonneCleDePastille(texte) == donnees.toString();
    });
    SupprimerPastille(donnees);
    MontrePastilles();
    Q_EMIT SignalCriteresChanges();
}

void BarreFiltreMots::PriseRetour()
{
    FiltreMots::Texte const saisie = DonneSaisie();
    if (TableMots::DonneCle(saisie.texte).empty())
        return;
    AjouteEpingle(saisie);
    PreteComboDeRecherche()->clearEditText();
}
