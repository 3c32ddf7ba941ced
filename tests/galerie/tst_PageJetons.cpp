// tests/galerie/tst_PageJetons.cpp
#include "PageJetons.h"

#include "ApercuFenetre.h"
#include "HoteJetons.h"
#include "TraceSignaux.h"

#include "editing/DComboJetonable.h"
#include "lists/ListeChoixFlottante.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_PageJetons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void jetonsAuDepart();
    void motsDeLaCategorie();
    void motsDuTexteLibre();
    void toutSansRien();
    void suppressionParLIcone();
    void sansSuppression();
    void sansIcones();
    void police();
    void trace();
    void traceVideAuDepart();
    void apercu();
    void icones_data();
    void icones();

private:
    DComboJetonable & PreteChamp(QString const & nom) const
    {
        return *maPage->findChild<DComboJetonable *>(nom);
    }
    QStringList DonneMots() const;

    std::unique_ptr<PageJetons> maPage;
};

void tst_PageJetons::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maPage = std::make_unique<PageJetons>();
    maPage->show();
    QVERIFY(QTest::qWaitForWindowExposed(maPage.get()));
}

void tst_PageJetons::cleanup()
{
    maPage.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QStringList tst_PageJetons::DonneMots() const
{
    auto const & liste = *maPage->findChild<QListWidget *>();
    QStringList mots;
    for (int rangee = 0; rangee < liste.count(); ++rangee)
        mots.append(liste.item(rangee)->text());
    return mots;
}

void tst_PageJetons::jetonsAuDepart()
{
    for (QString const & nom : {u"motCherche"_s, u"sansSuppression"_s, u"sansIcones"_s}) {
        QVERIFY(PreteChamp(nom).UnJetonEstActif());
        QVERIFY(!PreteChamp(nom).lineEdit()->toolTip().isEmpty());
        QVERIFY(!PreteChamp(nom).lineEdit()->placeholderText().isEmpty());
    }
}

void tst_PageJetons::motsDeLaCategorie()
{
    QCOMPARE(DonneMots(), QStringList({u"arbre"_s, u"chemin"_s, u"courage"_s, u"table"_s}));
    PreteChamp(u"motCherche"_s).findChild<HoteJetons *>()->Choisis(3);
    QCOMPARE(DonneMots(), QStringList({u"clair"_s, u"lent"_s, u"vaste"_s}));
}

void tst_PageJetons::motsDuTexteLibre()
{
    QTest::keyClicks(&PreteChamp(u"motCherche"_s), u"C"_s);
    QCOMPARE(DonneMots(), QStringList({u"chemin"_s, u"clair"_s, u"courage"_s, u"courir"_s}));
}

void tst_PageJetons::toutSansRien()
{
    QTest::keyClick(&PreteChamp(u"motCherche"_s), Qt::Key_Backspace);

    qsizetype tous = 0;
    for (CategorieDeMots const & categorie : HoteJetons::DonneCategories())
        tous += categorie.mots.size();
    QCOMPARE(DonneMots().size(), tous);
}

void tst_PageJetons::suppressionParLIcone()
{
    DComboJetonable & champ = PreteChamp(u"motCherche"_s);
    QTest::mouseClick(&champ, Qt::LeftButton, {}, champ.DonneRectIcone().center());
    QVERIFY(!champ.UnJetonEstActif());
    QVERIFY(champ.findChild<HoteJetons *>()->PreteListe().isVisible());
}

void tst_PageJetons::sansSuppression()
{
    DComboJetonable & champ = PreteChamp(u"sansSuppression"_s);
    QTest::mouseClick(&champ, Qt::LeftButton, {}, champ.DonneRectIcone().center());
    QVERIFY(champ.UnJetonEstActif());
}

void tst_PageJetons::sansIcones()
{
    DComboJetonable & champ = PreteChamp(u"sansIcones"_s);
    QVERIFY(champ.lineEdit()->maximumWidth() > champ.width());
}

void tst_PageJetons::police()
{
    DComboJetonable & champ = PreteChamp(u"sansIcones"_s);
    auto & taille = *maPage->findChild<QSpinBox *>(u"tailleJeton"_s);
    QImage image = champ.grab().toImage();
    auto const aChange = [&] {
        QImage const avant = std::exchange(image, champ.grab().toImage());
        return image != avant;
    };
    QVERIFY(!aChange());
    taille.setValue(taille.maximum());
    QVERIFY(aChange());
    maPage->findChild<QCheckBox *>(u"jetonGras"_s)->toggle();
    QVERIFY(aChange());
    maPage->findChild<QCheckBox *>(u"jetonItalique"_s)->toggle();
    QVERIFY(aChange());
}

void tst_PageJetons::trace()
{
    auto const & trace = *maPage->findChild<TraceSignaux *>();
    DComboJetonable & champ = PreteChamp(u"motCherche"_s);

    QTest::mouseClick(&champ, Qt::LeftButton, {}, champ.DonneRectIcone().center());
    QTest::keyClicks(&champ, u"m"_s);

    QCOMPARE(trace.toPlainText().split(u'\n'),
             QStringList({u"DComboJetonable::SignalBoutonXAppuyay()"_s,
                          u"DComboJetonable::SignalJetonChangay()"_s,
                          u"DComboJetonable::SignalShowPopup()"_s,
                          u"DComboJetonable::editTextChanged(m)"_s}));
}

void tst_PageJetons::traceVideAuDepart()
{
    QCOMPARE(maPage->findChild<TraceSignaux *>()->toPlainText(), QString());
}

void tst_PageJetons::apercu()
{
    auto const & apercu = *maPage->findChild<ApercuFenetre *>();
    QVERIFY(!apercu.accessibleName().isEmpty());
    QVERIFY(apercu.height() > 5 * apercu.fontMetrics().height());
}

void tst_PageJetons::icones_data()
{
    QTest::addColumn<QString>("nom");
    for (char const * const nom :
         {"jetonOuvrir", "jetonOuvrirSurvol", "jetonSupprimer", "jetonSupprimerSurvol"})
        QTest::newRow(nom) << QString::fromLatin1(nom);
}

void tst_PageJetons::icones()
{
    QFETCH(QString, nom);
    QVERIFY(!QIcon(u":/images/%1.svg"_s.arg(nom)).pixmap(16).isNull());
}

QTEST_MAIN(tst_PageJetons)
#include "tst_PageJetons.moc"
