// tests/galerie/tst_FenetreGalerie.cpp
#include "FenetreGalerie.h"

#include "ApercuFenetre.h"
#include "Langues.h"
#include "OngletsGalerie.h"
#include "PageRecherche.h"
#include "Pages.h"
#include "ThemeGalerie.h"
#include "VueEcrans.h"

#include "controls/DCheckBox.h"
#include "controls/DRadioButton.h"
#include "controls/DToggleButton.h"
#include "foundation/ThemesQt.h"
#include "noyau/Traductions.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// A page is built when it is first shown.
void MontreToutesLesPages(FenetreGalerie & fenetre)
{
    for (int i = 0; i < DonnePages().size(); ++i)
        fenetre.MontrePage(i);
}

// The window's picture may have corners that show nothing, where its preview shows the page.
QImage DonneInterieur(QWidget & widget)
{
    QImage const image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    return image.copy(image.rect().adjusted(8, 8, -8, -8));
}

bool EstDansUnApercu(QWidget & fenetre, QWidget const & galerie)
{
    QImage const image = DonneInterieur(fenetre);
    auto const apercus = galerie.findChildren<ApercuFenetre *>();
    return std::any_of(apercus.begin(), apercus.end(), [&image](ApercuFenetre * apercu) {
        return DonneInterieur(*apercu) == image;
    });
}

} // namespace

class tst_FenetreGalerie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void langueRefaitLesPages();
    void saisiesGardees();
    void saisiesDuMemeNom();
    void saisiesDesTextesDepart();
    void saisieDansUnCombo();
    void saisiesDansLesApercus();
    void lettresUniques_data();
    void lettresUniques();
    void themeSuivi();
    void codes();
    void iconeChoisie();

private:
    ThemeGalerie monTheme;
};

void tst_FenetreGalerie::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    monTheme.Reinitialise();
    QVERIFY(monTheme.Applique());
    // Whatever packages this machine has.
    PageRecherche::PreteMemoire() = {};
    PageRecherche::PreteMemoire().texte = u"Un texte où chercher"_s;
    PageRecherche::PreteMemoire().mots.MetsFichier(QString());
}

void tst_FenetreGalerie::cleanup()
{
    // The menu of a search bar dies later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

void tst_FenetreGalerie::langueRefaitLesPages()
{
    FenetreGalerie fenetre(monTheme);
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    auto const * const liste = fenetre.findChild<QListWidget *>(u"listePages"_s);
    auto * const choix = fenetre.findChild<QComboBox *>(u"choixLangue"_s);
    fenetre.MontrePage(2);
    QPointer<QWidget> const cadre = onglets.DonneWidgetCourant();
    QPointer<QWidget> const page = cadre->findChild<QWidget *>();
    auto const titre = [&] { return cadre->findChild<QLabel *>(u"titrePage"_s)->text(); };
    QCOMPARE(titre(), u"Polices"_s);

    choix->setCurrentIndex(choix->findData(kLangueAnglais));

    QVERIFY(page.isNull());
    QCOMPARE(onglets.DonneWidgetCourant(), cadre); // rebuilt in place
    QCOMPARE(onglets.DonneTotalOnglet(), 2);
    QCOMPARE(titre(), u"Fonts"_s);
    QCOMPARE(liste->item(2)->text(), u"Fonts"_s);
    QCOMPARE(liste->currentRow(), 2);
    QCOMPARE(fenetre.locale().language(), QLocale::English);

    fenetre.MetsLangue(kLangueFrancais);
    QCOMPARE(titre(), u"Polices"_s);
    QCOMPARE(choix->currentData().toInt(), static_cast<int>(kLangueFrancais));
}

void tst_FenetreGalerie::saisiesGardees()
{
    FenetreGalerie fenetre(monTheme);
    MontreToutesLesPages(fenetre);
    QString const feuille = u"QLabel { color: @couleurBordure; }"_s;
    QRect const rectangle(120, 60, 300, 200);
    fenetre.findChild<QPlainTextEdit *>(u"feuille"_s)->setPlainText(feuille);
    fenetre.findChild<QLineEdit *>(u"filtreVariables"_s)->setText(u"bordure"_s);
    fenetre.findChild<QLineEdit *>(u"filtreMessages"_s)->setText(u"fermer"_s);
    fenetre.findChild<QSpinBox *>(u"nombre"_s)->setValue(7);
    fenetre.findChild<QComboBox *>(u"disposition"_s)->setCurrentIndex(2);
    fenetre.findChild<QSpinBox *>(u"largeur"_s)->setValue(rectangle.width());
    fenetre.findChild<QSpinBox *>(u"hauteur"_s)->setValue(rectangle.height());
    fenetre.findChild<VueEcrans *>()->MetsRectangle(rectangle);
    fenetre.findChild<QCheckBox *>(u"marge"_s)->setChecked(true);
    fenetre.findChild<QCheckBox *>(u"forcage"_s)->setChecked(false);
    fenetre.findChild<DCheckBox *>(u"caseNormale"_s)->MetsCochay(true);
    fenetre.findChild<DRadioButton *>(u"radioDeuxieme"_s)->MetsCochay(true);
    fenetre.findChild<QAbstractButton *>(u"exclusif_5"_s)->setChecked(true);

    fenetre.MetsLangue(kLangueAnglaisCanada);
    MontreToutesLesPages(fenetre);

    QCOMPARE(fenetre.findChild<QPlainTextEdit *>(u"feuille"_s)->toPlainText(), feuille);
    QCOMPARE(fenetre.findChild<QLineEdit *>(u"filtreVariables"_s)->text(), u"bordure"_s);
    QCOMPARE(fenetre.findChild<QLineEdit *>(u"filtreMessages"_s)->text(), u"fermer"_s);
    QCOMPARE(fenetre.findChild<QSpinBox *>(u"nombre"_s)->value(), 7);
    auto const * const disposition = fenetre.findChild<QComboBox *>(u"disposition"_s);
    QCOMPARE(disposition->currentIndex(), 2);
    QCOMPARE(disposition->currentText(), u"A laptop below a large screen"_s);
    QCOMPARE(fenetre.findChild<VueEcrans *>()->DonneRectangle(), rectangle);
    QVERIFY(fenetre.findChild<QCheckBox *>(u"marge"_s)->isChecked());
    QVERIFY(!fenetre.findChild<QCheckBox *>(u"forcage"_s)->isChecked());
    QVERIFY(fenetre.findChild<DCheckBox *>(u"caseNormale"_s)->EstCochay());
    QVERIFY(fenetre.findChild<DRadioButton *>(u"radioDeuxieme"_s)->EstCochay());
    QVERIFY(fenetre.findChild<QAbstractButton *>(u"exclusif_5"_s)->isChecked());
    QVERIFY(!fenetre.findChild<QAbstractButton *>(u"exclusif_3"_s)->isChecked());
    // The filter does what it shows.
    auto const * const table = fenetre.findChild<QTableView *>(u"tableVariables"_s);
    QVERIFY(table->model()->rowCount() > 0);
    QVERIFY(table->model()->rowCount() < ThemesQt::Instance()->DonneNoms().size());
}

// Both fields of the search bar go by one name.
void tst_FenetreGalerie::saisiesDuMemeNom()
{
    FenetreGalerie fenetre(monTheme);
    MontreToutesLesPages(fenetre);
    auto const champs = [&fenetre] {
        return fenetre.findChildren<QLineEdit *>(u"ChampTexteRecherche"_s);
    };
    QCOMPARE(champs().size(), 2);
    champs().first()->setText(u"texte"_s);
    champs().last()->setText(u"livre"_s);

    fenetre.MetsLangue(kLangueAnglais);
    MontreToutesLesPages(fenetre);

    QCOMPARE(champs().first()->text(), u"texte"_s);
    QCOMPARE(champs().last()->text(), u"livre"_s);
}

// A text that nobody has changed is in the language of its page.
void tst_FenetreGalerie::saisiesDesTextesDepart()
{
    FenetreGalerie fenetre(monTheme);
    MontreToutesLesPages(fenetre);
    auto const texte = [&fenetre](QString const & nom) {
        return fenetre.findChild<QLineEdit *>(nom)->text();
    };
    QCOMPARE(texte(u"champApercu"_s), u"Champ"_s);
    fenetre.findChild<QLineEdit *>(u"essaiChamp"_s)->setText(u"un essai"_s);

    fenetre.MetsLangue(kLangueAnglais);
    MontreToutesLesPages(fenetre);
    QCOMPARE(texte(u"champApercu"_s), u"Field"_s);
    QCOMPARE(texte(u"essaiChamp"_s), u"un essai"_s);

    // It is still a change where the page is built with it.
    fenetre.MetsLangue(kLangueFrancais);
    MontreToutesLesPages(fenetre);
    QCOMPARE(texte(u"essaiChamp"_s), u"un essai"_s);
}

void tst_FenetreGalerie::saisieDansUnCombo()
{
    FenetreGalerie fenetre(monTheme);
    MontreToutesLesPages(fenetre);
    auto const combo = [&fenetre] { return fenetre.findChild<QComboBox *>(u"motCherche"_s); };
    combo()->setEditText(u"pas encore"_s);

    fenetre.MetsLangue(kLangueAnglais);
    MontreToutesLesPages(fenetre);

    QCOMPARE(combo()->currentText(), u"pas encore"_s);
}

// What stands in a window that is closed is kept, and seen in its picture.
void tst_FenetreGalerie::saisiesDansLesApercus()
{
    FenetreGalerie fenetre(monTheme);
    MontreToutesLesPages(fenetre);
    fenetre.findChild<QSpinBox *>(u"taille"_s)->setValue(60);
    fenetre.findChild<DToggleButton *>(u"cesure"_s)->setChecked(false);
    fenetre.findChild<QLineEdit *>(u"remarque"_s)->setText(u"Relu"_s);
    fenetre.findChild<DCheckBox *>(u"chercheTitres"_s)->MetsCochay(false);
    fenetre.findChild<DCheckBox *>(u"chercheNotes"_s)->MetsCochay(true);

    fenetre.MetsLangue(kLangueAnglais);
    MontreToutesLesPages(fenetre);

    auto & taille = *fenetre.findChild<QSpinBox *>(u"taille"_s);
    auto & notes = *fenetre.findChild<DCheckBox *>(u"chercheNotes"_s);
    QCOMPARE(taille.value(), 60);
    QVERIFY(!fenetre.findChild<DToggleButton *>(u"cesure"_s)->isChecked());
    QCOMPARE(fenetre.findChild<QLineEdit *>(u"remarque"_s)->text(), u"Relu"_s);
    QVERIFY(!fenetre.findChild<DCheckBox *>(u"chercheTitres"_s)->EstCochay());
    QVERIFY(notes.EstCochay());
    QCoreApplication::processEvents(); // the pictures follow
    for (QWidget * const saisie : {static_cast<QWidget *>(&taille), static_cast<QWidget *>(&notes)})
        QVERIFY2(EstDansUnApercu(*saisie->window(), fenetre), qPrintable(saisie->objectName()));
}

void tst_FenetreGalerie::lettresUniques_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::newRow("French") << kLangueFrancais;
    QTest::newRow("English") << kLangueAnglais;
    QTest::newRow("English for Canada") << kLangueAnglaisCanada;
}

void tst_FenetreGalerie::lettresUniques()
{
    QFETCH(eLangue, langue);
    FenetreGalerie fenetre(monTheme);
    fenetre.MetsLangue(langue);
    OngletsGalerie const & onglets = fenetre.PreteOnglets();
    for (int i = 0; i < DonnePages().size(); ++i) {
        fenetre.MontrePage(i);
        QWidget const * const page = onglets.DonneWidgetCourant();
        QStringList textes;
        for (auto const * const etiquette : fenetre.findChildren<QLabel *>())
            // Windows of the pages, as the wizard's, have letters of their own.
            if (etiquette->buddy() && etiquette->window() == &fenetre &&
                (page->isAncestorOf(etiquette) || !onglets.isAncestorOf(etiquette)))
                textes.append(etiquette->text());
        QVERIFY(!textes.isEmpty());
        for (auto const * const bouton : page->findChildren<QAbstractButton *>())
            textes.append(bouton->text());
        QSet<QKeySequence> lettres;
        for (QString const & texte : textes) {
            QKeySequence const lettre = QKeySequence::mnemonic(texte);
            QVERIFY2(lettre.isEmpty() || !lettres.contains(lettre), qPrintable(texte));
            lettres.insert(lettre);
        }
    }
}

void tst_FenetreGalerie::themeSuivi()
{
    FenetreGalerie fenetre(monTheme);
    auto const valeur = [&] {
        auto const * const modele = fenetre.findChild<QTableView *>(u"tableVariables"_s)->model();
        return modele->match(modele->index(0, 0), Qt::DisplayRole, u"couleurFondBlanc"_s)
            .value(0)
            .siblingAtColumn(1)
            .data()
            .toString();
    };
    QCOMPARE(valeur(), u"rgba(255,255,255,255)"_s);

    monTheme.Remplace(u"couleurFondBlanc"_s, QColor(1, 2, 3));
    fenetre.RefaisPages();

    QCOMPARE(valeur(), u"rgba(1,2,3,255)"_s);
}

void tst_FenetreGalerie::codes()
{
    for (DescriptionLangue const & langue : DonneLangues())
        QCOMPARE(DonneLangueDuCode(langue.code), std::optional(langue.langue));
    QVERIFY(!DonneLangueDuCode(u"de"_s));
    QVERIFY(!DonneLangueDuCode(QString()));
}

void tst_FenetreGalerie::iconeChoisie()
{
    FenetreGalerie fenetre(monTheme);
    auto const * const liste = fenetre.findChild<QListWidget *>(u"listePages"_s);
    for (int i = 0; i < liste->count(); ++i) {
        QIcon const icone = liste->item(i)->icon();
        QImage const image = icone.pixmap(32, QIcon::Normal).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(icone.pixmap(32, QIcon::Selected).toImage(), image); // without the style's tint
    }
}

QTEST_MAIN(tst_FenetreGalerie)
#include "tst_FenetreGalerie.moc"
