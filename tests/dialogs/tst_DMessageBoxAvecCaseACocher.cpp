// tests/dialogs/tst_DMessageBoxAvecCaseACocher.cpp
#include "EssaisBoites.h"

#include "dialogs/DMessageBoxAvecCaseACocher.h"
#include "dialogs/StockageReponse.h"

#include "noyau/Traductions.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QProxyStyle>
#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

class tst_DMessageBoxAvecCaseACocher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void classeSelonLeStockage_data();
    void classeSelonLeStockage();
    void libelle_data();
    void libelle();
    void nomEtPropriete();
    void placeDansLaGrille_data();
    void placeDansLaGrille();
    void resteEnPlaceAuChangementDeStyle();
    void ligneSousLExplication_data();
    void ligneSousLExplication();
    void caseEstCochee();
    void clavier();
    void accessible();

private:
    DMessageBox * Montre(DAlerteInfo const & info, eTypStockeur type = StockeurNePlusMAviser) const;
};

namespace {

DAlerteInfo Question(QString const & note = u"Une note"_s)
{
    return {DAlerteInfo::kQuestion, u"Continuer ?"_s, note, u"Essai"_s};
}

QCheckBox * DonneCase(DMessageBox const & boite)
{
    return boite.findChild<QCheckBox *>(u"NePlusMAviser"_s);
}

} // namespace

void tst_DMessageBoxAvecCaseACocher::cleanup()
{
    if (DMessageBox * const boite = DonneBoiteVisible())
        boite->PriseResultat(QVariant::fromValue(kBoutonAucun));
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

DMessageBox * tst_DMessageBoxAvecCaseACocher::Montre(DAlerteInfo const & info,
                                                     eTypStockeur type) const
{
    DAlerteRappel(nullptr, info, type, {}, kBoutonOui | kBoutonNon, kBoutonOui, kBoutonNon,
                  [](eBoutons const &) {});
    return DonneBoiteVisible();
}

void tst_DMessageBoxAvecCaseACocher::classeSelonLeStockage_data()
{
    QTest::addColumn<eTypStockeur>("type");
    QTest::addColumn<bool>("avecCase");
    QTest::newRow("default store") << StockeurParDefaut << false;
    QTest::newRow("do not show again") << StockeurNePlusMAviser << true;
}

void tst_DMessageBoxAvecCaseACocher::classeSelonLeStockage()
{
    QFETCH(eTypStockeur, type);
    QFETCH(bool, avecCase);
    DMessageBox const * const boite = Montre(Question(), type);
    QCOMPARE(qobject_cast<DMessageBoxAvecCaseACocher const *>(boite) != nullptr, avecCase);
    QCOMPARE(DonneCase(*boite) != nullptr, avecCase);
    QVERIFY(!boite->CaseEstCochee());
}

void tst_DMessageBoxAvecCaseACocher::libelle_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<QString>("donnay");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("French") << kLangueFrancais << QString() << u"Ne plus afficher ce dialogue"_s;
    QTest::newRow("English") << kLangueAnglais << QString() << u"Do not show this dialog again"_s;
    QTest::newRow("the caller's own") << kLangueAnglais << u"Toujours &oui"_s << u"Toujours &oui"_s;
}

void tst_DMessageBoxAvecCaseACocher::libelle()
{
    QFETCH(eLangue, langue);
    QFETCH(QString, donnay);
    QFETCH(QString, attendu);
    Traductions::MetsLanguePourApplicationCourante(langue);
    DAlerteInfo info = Question();
    info.libelleCaseACocher = donnay;
    QCOMPARE(DonneCase(*Montre(info))->text(), attendu);
}

void tst_DMessageBoxAvecCaseACocher::nomEtPropriete()
{
    QCheckBox const * const laCase = DonneCase(*Montre(Question()));
    QCOMPARE(laCase->objectName(), u"NePlusMAviser"_s);
    QCOMPARE(laCase->property("DStyleProxy"), QVariant(true));
}

void tst_DMessageBoxAvecCaseACocher::placeDansLaGrille_data()
{
    QTest::addColumn<DAlerteInfo::eTypeDialogue>("type");
    QTest::addColumn<QString>("note");
    QTest::newRow("with an icon and a note") << DAlerteInfo::kQuestion << u"Note"_s;
    QTest::newRow("with an icon alone") << DAlerteInfo::kQuestion << QString();
    QTest::newRow("with a note alone") << DAlerteInfo::kSansIcone << u"Note"_s;
    QTest::newRow("with neither") << DAlerteInfo::kSansIcone << QString();
}

void tst_DMessageBoxAvecCaseACocher::placeDansLaGrille()
{
    QFETCH(DAlerteInfo::eTypeDialogue, type);
    QFETCH(QString, note);
    DMessageBox const * const boite = Montre(DAlerteInfo(type, u"Continuer ?"_s, note, u"Essai"_s));
    auto const * const grille = qobject_cast<QGridLayout *>(boite->layout());
    QCheckBox * const laCase = DonneCase(*boite);
    int const indice = grille->indexOf(laCase);
    QVERIFY(indice >= 0);
    int ligne = -1;
    int colonne = -1;
    int lignes = 0;
    int colonnes = 0;
    grille->getItemPosition(indice, &ligne, &colonne, &lignes, &colonnes);
    QCOMPARE(QRect(colonne, ligne, colonnes, lignes), QRect(2, 1, 1, 1));
    QCOMPARE(grille->itemAt(indice)->alignment(), Qt::AlignLeft | Qt::AlignBottom);
    QVERIFY(laCase->isVisible());
    QVERIFY(boite->rect().contains(laCase->geometry()));
}

void tst_DMessageBoxAvecCaseACocher::resteEnPlaceAuChangementDeStyle()
{
    DMessageBox * const boite = Montre(Question());
    QRect const avant = DonneCase(*boite)->geometry();
    boite->setStyleSheet(boite->styleSheet() + u"QPushButton { color: blue; }"_s);
    QCoreApplication::processEvents();
    auto const * const grille = qobject_cast<QGridLayout *>(boite->layout());
    QVERIFY(grille->indexOf(DonneCase(*boite)) >= 0);
    QCOMPARE(DonneCase(*boite)->geometry(), avant);
}

void tst_DMessageBoxAvecCaseACocher::ligneSousLExplication_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("a line below the note") << u"Note"_s << u" Note<br>"_s;
    QTest::newRow("no line below nothing") << QString() << QString();
    QTest::newRow("mark-up") << u"<b>Note</b>"_s << u" <b>Note</b><br>"_s;
    QTest::newRow("a line feed, which hides the tag from Qt")
        << u"Un\nDeux & trois"_s << u" Un<br>Deux &amp; trois<br>"_s;
    QTest::newRow("a sign that is no tag, likewise") << u"a < b"_s << u" a &lt; b<br>"_s;
}

void tst_DMessageBoxAvecCaseACocher::ligneSousLExplication()
{
    QFETCH(QString, note);
    QFETCH(QString, attendu);
    DMessageBox const * const boite = Montre(Question(note));
    QCOMPARE(boite->informativeText(), attendu);
    QVERIFY(attendu.isEmpty() || Qt::mightBeRichText(attendu)); // never a tag to be seen
}

void tst_DMessageBoxAvecCaseACocher::caseEstCochee()
{
    DMessageBox * const boite = Montre(Question());
    QTest::mouseClick(DonneCase(*boite), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(boite->CaseEstCochee());
    QVERIFY(boite->isVisible()); // a tick is no answer
    QTest::mouseClick(DonneCase(*boite), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(!boite->CaseEstCochee());
}

void tst_DMessageBoxAvecCaseACocher::clavier()
{
    DMessageBox * const boite = Montre(Question());
    boite->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(boite));
    for (int i = 0; i < 5 && boite->focusWidget() != DonneCase(*boite); ++i)
        QTest::keyClick(boite->focusWidget(), Qt::Key_Tab);
    QCOMPARE(boite->focusWidget(), DonneCase(*boite));
    QTest::keyClick(boite->focusWidget(), Qt::Key_Space);
    QVERIFY(boite->CaseEstCochee());
}

void tst_DMessageBoxAvecCaseACocher::accessible()
{
    DMessageBox * const boite = Montre(Question());
    QAccessibleInterface * const lu = QAccessible::queryAccessibleInterface(boite);
    QCOMPARE(lu->text(QAccessible::Name), u"Essai"_s);
    QCOMPARE(lu->text(QAccessible::Description), u"Continuer ?\nUne note"_s);
    QAccessibleInterface * const caseLue = QAccessible::queryAccessibleInterface(DonneCase(*boite));
    QCOMPARE(lu->indexOfChild(caseLue) >= 0, true);
    QCOMPARE(caseLue->role(), QAccessible::CheckBox);
    QCOMPARE(caseLue->text(QAccessible::Name), u"Ne plus afficher ce dialogue"_s);
    QVERIFY(!caseLue->state().checked);
    caseLue->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(caseLue->state().checked);
    QVERIFY(boite->CaseEstCochee());
}

QTEST_MAIN(tst_DMessageBoxAvecCaseACocher)
#include "tst_DMessageBoxAvecCaseACocher.moc"
