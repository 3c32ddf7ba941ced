// galerie/PageRecherche.cpp
#include "PageRecherche.h"

#include "ApercuFenetre.h"
#include "ChampMots.h"
#include "HoteRecherche.h"
#include "Pages.h"
#include "TexteCherchable.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "lists/ListeChoixFlottante.h"
#include "search/BarreRecherche.h"

#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurMots = 270;
constexpr int kLargeurNom = 300; // of a file, at most: titles do not shrink
constexpr QSize kTailleDialogue(560, 420);

// For the first search, the word that comes back most often of those that the text begins with.
QString DonneMotFrequent(QString const & texte)
{
    constexpr int kCandidats = 5;
    static QRegularExpression const expression(u"\\b\\p{L}{4,}\\b"_s,
                                               QRegularExpression::UseUnicodePropertiesOption);
    QString frequent;
    qsizetype maximum = 0;
    auto mots = expression.globalMatch(texte);
    for (int i = 0; i < kCandidats && mots.hasNext(); ++i) {
        QString const mot = mots.next().captured();
        if (qsizetype const nombre = texte.count(mot, Qt::CaseInsensitive); nombre > maximum) {
            maximum = nombre;
            frequent = mot;
        }
    }
    return frequent;
}

QLabel * CreeMessage()
{
    auto * const message = new QLabel;
    message->setObjectName(u"messageErreur"_s); // the sheet's colour for errors
    message->setTextFormat(Qt::PlainText);      // it may name a file that looks like something else
    message->setWordWrap(true);
    message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // whatever it names
    message->hide();
    return message;
}

void MontreMessage(QLabel & etiquette, QString const & message)
{
    etiquette.setText(message);
    etiquette.setVisible(!message.isEmpty());
}

} // namespace

PageRecherche::PageRecherche(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Recherche")),
        TraductionGalerie(TexteGalerie(
            "La barre et le dialogue de recherche sur un vrai texte, et un champ qui propose des "
            "mots pendant la frappe. Ctrl+F ouvre la barre.")));
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Trace")));
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeTexte(), 0, 0, 2, 1);
    grille->addWidget(CreeMots(), 0, 1);
    grille->addWidget(CreeTrace(), 1, 1);
    grille->setColumnStretch(0, 1);
    grille->setRowStretch(1, 1);
    disposition->addLayout(grille, 1);
    disposition->addLayout(CreeBoutons());
    Branche();

    Memoire const & memoire = PreteMemoire();
    if (memoire.texte) {
        monTexte->MetsTexte(*memoire.texte);
        MontreNom();
    } else if (LisFichier(memoire.fichier) == LectureTexte::kAbsent && !memoire.paquet.isEmpty()) {
        MontreMessage(*monMessage,
                      TraductionGalerie(TexteGalerie("Le texte vient du paquet {1}, qui n’est pas "
                                                     "installé. Tout autre texte peut s’ouvrir."),
                                        {UniChaine(memoire.paquet)}));
    }
}

PageRecherche::~PageRecherche()
{
    Memoire & memoire = PreteMemoire();
    QString const texte = monTexte->DonneTexte();
    if (!memoire.texte && !texte.isEmpty())
        memoire.fichier.clear(); // it could not be read: this was typed
    if (memoire.texte || !texte.isEmpty())
        memoire.texte = texte;
    if (maDemonstrationFaite)
        memoire.barreOuverte = monTexte->BarreEstOuverte();
}

PageRecherche::Memoire & PageRecherche::PreteMemoire()
{
    static Memoire memoire;
    return memoire;
}

void PageRecherche::showEvent(QShowEvent * evenement)
{
    QWidget::showEvent(evenement);
    // Not before: what was entered on a former page stands in the fields by now.
    if (!std::exchange(maDemonstrationFaite, true))
        Demontre();
}

QWidget * PageRecherche::CreeTexte()
{
    monGroupe = new QGroupBox(TraductionGalerie(TexteGalerie("Texte")));
    monMessage = CreeMessage();
    monTexte = new TexteCherchable(*maTrace, *this);
    auto * const disposition = new QVBoxLayout(monGroupe);
    disposition->addWidget(monMessage);
    disposition->addWidget(monTexte, 1);
    return monGroupe;
}

QWidget * PageRecherche::CreeMots()
{
    monChampMots = new ChampMots(PreteMemoire().mots);
    monChampMots->setObjectName(u"mot"_s);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Mot à chercher")));
    etiquette->setBuddy(monChampMots);
    monMessageMots = CreeMessage();
    maLegende = new QLabel(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")));
    maLegende->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
    monApercu = new ApercuFenetre(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")),
                                  monChampMots->PreteListe());

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Mots proposés")));
    groupe->setFixedWidth(kLargeurMots);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(etiquette);
    disposition->addWidget(monChampMots);
    disposition->addWidget(monMessageMots);
    disposition->addWidget(maLegende);
    disposition->addWidget(monApercu);
    return groupe;
}

QWidget * PageRecherche::CreeTrace()
{
    auto * const groupe = EncadreTrace(*maTrace);
    groupe->setFixedWidth(kLargeurMots);
    return groupe;
}

QLayout * PageRecherche::CreeBoutons()
{
    auto * const boutons = new QHBoxLayout;
    struct
    {
        QPushButton *& bouton;
        QString nom;
        ChaineLocalisable texte;
    } const descriptions[] = {
        {monBoutonBarre, u"barre"_s, TexteGalerie("&Barre")},
        {monBoutonDialogue, u"dialogue"_s, TexteGalerie("&Dialogue")},
        {monBoutonDansUnDialogue, u"dansUnDialogue"_s, TexteGalerie("Barre dans &un dialogue")},
        {monBoutonOuvrir, u"ouvrir"_s, TexteGalerie("&Ouvrir…")},
    };
    for (auto const & description : descriptions) {
        description.bouton = new QPushButton(TraductionGalerie(description.texte));
        description.bouton->setObjectName(description.nom);
        boutons->addWidget(description.bouton);
    }
    maCaseRiche = new QCheckBox(TraductionGalerie(TexteGalerie("Dans un &QTextEdit")));
    maCaseRiche->setObjectName(u"editeurRiche"_s);
    boutons->addWidget(maCaseRiche);
    boutons->addStretch();
    return boutons;
}

void PageRecherche::Branche()
{
    connect(monBoutonBarre, &QPushButton::clicked, monTexte, &TexteCherchable::OuvreBarre,
            Qt::UniqueConnection);
    connect(monBoutonDialogue, &QPushButton::clicked, monTexte, &TexteCherchable::OuvreDialogue,
            Qt::UniqueConnection);
    connect(monBoutonDansUnDialogue, &QPushButton::clicked, this,
            &PageRecherche::PriseDansUnDialogue, Qt::UniqueConnection);
    connect(monBoutonOuvrir, &QPushButton::clicked, this, &PageRecherche::PriseOuvrir,
            Qt::UniqueConnection);
    connect(maCaseRiche, &QCheckBox::toggled, this, &PageRecherche::PriseTexteRiche,
            Qt::UniqueConnection);
    connect(monChampMots, &QLineEdit::textEdited, this, &PageRecherche::PriseMotTapay,
            Qt::UniqueConnection);
    connect(monChampMots, &ChampMots::SignalMotChoisi, this, &PageRecherche::PriseMotChoisi,
            Qt::UniqueConnection);
}

// The text that is shown stays when the file cannot be read.
LectureTexte::eResultat PageRecherche::LisFichier(QString const & fichier)
{
    LectureTexte const lecture(fichier);
    MontreMessage(*monMessage, lecture.DonneMessage());
    if (lecture.DonneResultat() == LectureTexte::kLu) {
        PreteMemoire().fichier = fichier;
        PreteMemoire().texte = lecture.DonneTexte();
        monTexte->MetsTexte(lecture.DonneTexte());
        MontreNom();
    }
    return lecture.DonneResultat();
}

void PageRecherche::MontreNom()
{
    QString const nom = QFileInfo(PreteMemoire().fichier).fileName();
    if (nom.isEmpty())
        return;
    QString const titre = fontMetrics().elidedText(nom, Qt::ElideMiddle, kLargeurNom);
    monGroupe->setTitle(QString(titre).replace(u'&', u"&&"_s)); // no mnemonic
}

// The page shows what it is for before the user has touched anything.
void PageRecherche::Demontre()
{
    // The list is read here, so that no keystroke waits for it.
    bool const avecMots = PreteMemoire().mots.Charge();
    if (!avecMots)
        MontreMessage(*monMessageMots,
                      TraductionGalerie(TexteGalerie("Les mots viennent du paquet {1}, qui n’est "
                                                     "pas installé."),
                                        {UniChaine("wfrench")}));
    MontreApercu(avecMots);
    if (monChampMots->text().isEmpty() && avecMots)
        monChampMots->setText(u"ete"_s); // an accent is not needed
    monChampMots->PreparePourApercu(monChampMots->text());
    monApercu->Actualise();
    if (PreteMemoire().barreOuverte && PreteMemoire().texte) {
        monTexte->OuvreRemplacement();
        monTexte->Demontre(DonneMotFrequent(*PreteMemoire().texte));
    }
}

void PageRecherche::MontreApercu(bool visible)
{
    maLegende->setVisible(visible);
    monApercu->setVisible(visible);
}

// In a dialog, where Escape closes the bar first and then the dialog.
void PageRecherche::PriseDansUnDialogue()
{
    auto * const dialogue = new QDialog(this);
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    dialogue->setObjectName(u"dialogueAvecBarre"_s);
    dialogue->setWindowTitle(
        TraductionGalerie(TexteGalerie("Barre de recherche dans un dialogue")));
    auto * const editeur = new QPlainTextEdit(monTexte->DonneTexte());
    editeur->setAccessibleName(TraductionGalerie(TexteGalerie("Texte")));
    editeur->setTabChangesFocus(true);
    auto * const barre = new BarreRecherche(nullptr, true, true, true, true);
    barre->hide();
    auto * const disposition = new QVBoxLayout(dialogue);
    disposition->addWidget(editeur);
    disposition->addWidget(barre);
    auto * const hote = new HoteRecherche(*editeur, *barre, dialogue);
    hote->BrancheTouches(*dialogue);
    dialogue->resize(kTailleDialogue);
    dialogue->show();
    hote->PriseOuvrir();
}

void PageRecherche::PriseOuvrir()
{
    auto * const dialogue =
        new QFileDialog(this, TraductionGalerie(TexteGalerie("Ouvrir un texte")),
                        QFileInfo(PreteMemoire().fichier).path());
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    dialogue->setFileMode(QFileDialog::ExistingFile);
    connect(dialogue, &QFileDialog::fileSelected, this, &PageRecherche::PriseFichierChoisi,
            Qt::UniqueConnection);
    dialogue->open();
}

void PageRecherche::PriseFichierChoisi(QString const & fichier)
{
    LisFichier(fichier);
}

void PageRecherche::PriseTexteRiche(bool riche)
{
    monTexte->MetsRiche(riche);
}

// The list opens for real, over the place of its picture. With the picture of what it held last the
// page would grow and shrink.
void PageRecherche::PriseMotTapay()
{
    MontreApercu(false);
}

void PageRecherche::PriseMotChoisi(QString const & mot)
{
    monTexte->Cherche(mot);
}
