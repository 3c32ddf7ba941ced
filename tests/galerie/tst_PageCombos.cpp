// tests/galerie/tst_PageCombos.cpp
#include "PageCombos.h"

#include "ApercuFenetre.h"

#include "controls/DComboBoxAvecDLabelElision.h"
#include "controls/DComboSansDeco.h"
#include "controls/DLabelElision.h"
#include "controls/DMenuAction.h"
#include "controls/DPopUpMenu.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_PageCombos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void separateurs();
    void premierRangCachay();
    void texteAbregay();
    void moisChoisi();
    void popUpACoteDuBouton();
    void menuDeRangees();
    void rangeeCachee();
    void apercus();
    void premierRangHorsDeLApercu();
    void apercusSuiventLeTheme();
    void apercuSuitLaFermeture();

private:
    QPushButton * PreteBouton(QString const & texte) const;
    bool Montre(QString const & texte) const;

    std::unique_ptr<PageCombos> maPage;
};

void tst_PageCombos::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maPage = std::make_unique<PageCombos>();
    maPage->show();
    QVERIFY(QTest::qWaitForWindowExposed(maPage.get()));
}

void tst_PageCombos::cleanup()
{
    maPage.reset();
    qApp->setStyleSheet(QString());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QPushButton * tst_PageCombos::PreteBouton(QString const & texte) const
{
    for (auto * const bouton : maPage->findChildren<QPushButton *>())
        if (bouton->text() == texte)
            return bouton;
    return nullptr;
}

bool tst_PageCombos::Montre(QString const & texte) const
{
    auto const etiquettes = maPage->findChildren<QLabel *>();
    return std::any_of(etiquettes.begin(), etiquettes.end(), [&texte](QLabel const * etiquette) {
        return etiquette->isVisible() && etiquette->text() == texte;
    });
}

void tst_PageCombos::separateurs()
{
    auto const & combo = *maPage->findChild<DComboBox *>(u"avecSeparateurs"_s);
    QList<int> lignes;
    for (int ligne = 0; ligne < combo.count(); ++ligne)
        if (combo.itemData(ligne, Qt::AccessibleDescriptionRole) == u"separator"_s)
            lignes.append(ligne);
    QCOMPARE(lignes, (QList<int>{2, 5}));
}

void tst_PageCombos::premierRangCachay()
{
    auto & combo = *maPage->findChild<DComboBox *>(u"premierCachay"_s);
    QVERIFY(combo.PremierElementCachay());
    QCOMPARE(combo.currentIndex(), 0);

    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Up);

    QCOMPARE(combo.currentIndex(), 1); // no key leads back
    QVERIFY(Montre(u"Rang courant\u00A0: 1"_s));

    QTest::mouseClick(PreteBouton(u"Choisir le rang &0"_s), Qt::LeftButton);

    QCOMPARE(combo.currentIndex(), 0);
    QVERIFY(Montre(u"Rang courant\u00A0: 0"_s));
}

void tst_PageCombos::texteAbregay()
{
    auto & combo = *maPage->findChild<DComboBoxAvecDLabelElision *>();
    QVERIFY(combo.itemText(0).contains(u"<b>"));
    QImage const avant = combo.grab().toImage();
    // Draws the closed combo box; made before the one that draws the list.
    auto const & label = *combo.findChild<DLabelElision *>();
    QVERIFY(combo.itemText(0).contains(label.DonneTexte().right(8)));
    QVERIFY(label.DonneModeElision() != DLabelElision::kSansElision);
    QVERIFY(label.EstEliday());
    QVERIFY(label.DonneLongueurLigne() < combo.width());

    combo.setCurrentIndex(1);

    QVERIFY(combo.grab().toImage() != avant);
    QCOMPARE(label.DonneTexte(), u"Un guide court"_s);
}

void tst_PageCombos::moisChoisi()
{
    auto & combo = *maPage->findChild<DComboSansDeco *>();
    QCOMPARE(combo.count(), 12);
    QVERIFY(Montre(combo.itemText(0)));

    combo.setCurrentIndex(11);

    QVERIFY(Montre(combo.itemText(11)));
    QVERIFY(!Montre(combo.itemText(0)));
    QVERIFY(combo.view()->minimumWidth() > combo.width()); // the names are read in the list
}

void tst_PageCombos::popUpACoteDuBouton()
{
    auto * const bouton = PreteBouton(u"Ouvrir à &côté"_s);
    auto & popUp = *maPage->findChild<DPopUpMenu *>();

    for (QString const & fermeture : {u"Fermée 1 fois"_s, u"Fermée 2 fois"_s}) {
        QTest::mouseClick(bouton, Qt::LeftButton);

        QVERIFY(popUp.isVisible());
        QRect const place(bouton->mapToGlobal(QPoint()), bouton->size());
        QVERIFY(!popUp.geometry().intersects(place));

        popUp.close();

        QVERIFY(Montre(fermeture));
    }
}

void tst_PageCombos::menuDeRangees()
{
    auto * const bouton = PreteBouton(u"Ouvrir le m&enu"_s);
    QWidget & menu = *maPage->findChild<DMenuAction *>()->window();
    bool visible = false;
    // The button's click comes back when the menu is closed.
    QTimer::singleShot(0, &menu, [&] { visible = menu.isVisible(), menu.close(); });

    QTest::mouseClick(bouton, Qt::LeftButton);

    QVERIFY(visible);
    QVERIFY(!menu.isVisible());
}

void tst_PageCombos::rangeeCachee()
{
    auto & affichee = *maPage->findChild<QCheckBox *>(u"rangeeAffichee"_s);
    auto const & menu = *maPage->findChild<DMenuAction *>();
    auto const & champ = *menu.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    int const hauteur = menu.window()->height();

    affichee.setChecked(false);

    QVERIFY(champ.isHidden());
    QVERIFY(menu.window()->height() < hauteur);

    affichee.setChecked(true);

    QVERIFY(!champ.isHidden());
    QCOMPARE(menu.window()->height(), hauteur);
}

void tst_PageCombos::apercus()
{
    auto const apercus = maPage->findChildren<ApercuFenetre *>();
    QCOMPARE(apercus.size(), 4); // of two lists, the pop-up and the menu
    for (ApercuFenetre * const apercu : apercus) {
        QVERIFY(!apercu->accessibleName().isEmpty());
        QVERIFY(apercu->height() > apercu->fontMetrics().height());
        QImage const image = apercu->grab().toImage();
        QImage unie = image;
        unie.fill(image.pixelColor(image.rect().center()));
        QVERIFY(image != unie);
    }
}

void tst_PageCombos::premierRangHorsDeLApercu()
{
    auto & combo = *maPage->findChild<DComboBox *>(u"premierCachay"_s);
    auto const & apercu = *combo.parentWidget()->findChild<ApercuFenetre *>();
    int const rang = combo.view()->sizeHintForIndex(combo.model()->index(1, 0)).height();
    QCOMPARE(combo.count(), 4);

    QVERIFY(apercu.height() >= 3 * rang);
    QVERIFY(apercu.height() < 4 * rang);
    QVERIFY(!combo.view()->visualRect(combo.model()->index(0, 0)).isValid());
}

void tst_PageCombos::apercusSuiventLeTheme()
{
    QList<QImage> avant;
    auto const apercus = maPage->findChildren<ApercuFenetre *>();
    for (ApercuFenetre * const apercu : apercus)
        avant.append(apercu->grab().toImage());

    qApp->setStyleSheet(
        u"QAbstractItemView, QFrame, QMenu { background-color: #101820; color: #f0e8d8; }"_s);

    for (int i = 0; i < apercus.size(); ++i)
        QTRY_VERIFY2(apercus[i]->grab().toImage() != avant[i], qPrintable(QString::number(i)));
}

void tst_PageCombos::apercuSuitLaFermeture()
{
    auto & popUp = *maPage->findChild<DPopUpMenu *>();
    ApercuFenetre * apercuPopUp = nullptr;
    for (auto * const apercu : maPage->findChildren<ApercuFenetre *>())
        if (apercu->size() == popUp.size())
            apercuPopUp = apercu;
    QVERIFY(apercuPopUp);
    QImage const avant = apercuPopUp->grab().toImage();

    popUp.AfficheToi(QPoint(), QSize());
    for (auto * const option : popUp.findChildren<QCheckBox *>())
        option->toggle();
    popUp.close();

    QTRY_VERIFY(apercuPopUp->grab().toImage() != avant);
}

QTEST_MAIN(tst_PageCombos)
#include "tst_PageCombos.moc"
