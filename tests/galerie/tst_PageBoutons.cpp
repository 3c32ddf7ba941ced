// tests/galerie/tst_PageBoutons.cpp
#include "PageBoutons.h"

#include "TraceSignaux.h"

#include "controls/DBoutonSansFleche.h"
#include "controls/DCheckBox.h"
#include "controls/DControleBoutonsExclusifs.h"
#include "controls/DImageCliquable.h"
#include "controls/DLabelClickable.h"
#include "controls/DLabelElisionClickable.h"
#include "controls/DRadioButton.h"
#include "controls/DToggleButton.h"
#include "controls/DToolButtonRiche.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_PageBoutons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void clicSurLeLibelle_data();
    void clicSurLeLibelle();
    void signauxDUneCase();
    void radiosExclusifs();
    void bascules();
    void boutonsOutil();
    void boutonsSansFleche();
    void actionDUnMenu();
    void groupesExclusifs();
    void partieDuMenu();
    void imageEtEtiquetteCliquables();
    void etiquetteAbregeeCliquable_data();
    void etiquetteAbregeeCliquable();

private:
    template <typename T>
    T * Prete(QString const & nom) const
    {
        return maPage->findChild<T *>(nom);
    }
    QStringList DonneTrace() const;
    void Clique(DBoutonAbstrait & bouton) const;

    std::unique_ptr<PageBoutons> maPage;
};

void tst_PageBoutons::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maPage = std::make_unique<PageBoutons>();
    maPage->show();
    QVERIFY(QTest::qWaitForWindowExposed(maPage.get()));
}

void tst_PageBoutons::cleanup()
{
    maPage.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QStringList tst_PageBoutons::DonneTrace() const
{
    return maPage->findChild<TraceSignaux *>()->toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

void tst_PageBoutons::Clique(DBoutonAbstrait & bouton) const
{
    QTest::mouseClick(bouton.findChild<QLabel *>(), Qt::LeftButton);
}

void tst_PageBoutons::clicSurLeLibelle_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("avant");
    QTest::addColumn<bool>("apres");
    QTest::newRow("an unchecked box") << u"caseNormale"_s << false << true;
    QTest::newRow("a checked box") << u"caseCochee"_s << true << false;
    QTest::newRow("a long label") << u"caseLongue"_s << false << true;
    QTest::newRow("a frozen value") << u"caseFigee"_s << true << true;
    QTest::newRow("a disabled box") << u"caseInactive"_s << true << true;
}

void tst_PageBoutons::clicSurLeLibelle()
{
    QFETCH(QString, nom);
    auto & option = *Prete<DCheckBox>(nom);
    QTEST(option.EstCochay(), "avant");

    Clique(option);

    QTEST(option.EstCochay(), "apres");
}

void tst_PageBoutons::signauxDUneCase()
{
    QVERIFY(DonneTrace().isEmpty());
    auto const & option = *Prete<DCheckBox>(u"caseNormale"_s);

    QTest::mouseClick(option.findChild<QCheckBox *>(), Qt::LeftButton, {}, QPoint(5, 5));

    for (QString const & ligne :
         {u"DCheckBox::pressed()"_s, u"DCheckBox::released()"_s, u"DCheckBox::clicked(true)"_s,
          u"DCheckBox::stateChanged(2)"_s, u"DCheckBox::toggled(true)"_s,
          u"DCheckBox::SignalCochageChangay(true)"_s})
        QCOMPARE(DonneTrace().count(ligne), 1);
}

void tst_PageBoutons::radiosExclusifs()
{
    auto & premier = *Prete<DRadioButton>(u"radioPremier"_s);
    auto & deuxieme = *Prete<DRadioButton>(u"radioDeuxieme"_s);
    auto & inactif = *Prete<DRadioButton>(u"radioInactif"_s);
    QVERIFY(premier.EstCochay());

    Clique(deuxieme);
    Clique(inactif);

    QVERIFY(!premier.EstCochay());
    QVERIFY(deuxieme.EstCochay());
    QVERIFY(!inactif.EstCochay());
    QVERIFY(DonneTrace().contains(u"DRadioButton::SignalCochageChangay(true)"_s));
}

void tst_PageBoutons::bascules()
{
    auto const bascules = maPage->findChildren<DToggleButton *>();
    QCOMPARE(bascules.size(), 12); // three pairs of radii, in four states
    for (DToggleButton * const bascule : bascules) {
        bool const avant = bascule->isChecked();
        QVERIFY(!bascule->accessibleName().isEmpty());

        QTest::mouseClick(bascule, Qt::LeftButton);

        QCOMPARE(bascule->isChecked() != avant, bascule->isEnabled());
    }
    QCOMPARE(DonneTrace().count(u"DToggleButton::toggled(true)"_s), 3);
    QCOMPARE(DonneTrace().count(u"DToggleButton::toggled(false)"_s), 3);
}

void tst_PageBoutons::boutonsOutil()
{
    QCOMPARE(Prete<DToolButtonRiche>(u"outilHtml"_s)->text(), u"Gras et italique"_s);
    QCOMPARE(Prete<DToolButtonRiche>(u"outilBrut"_s)->text(), u"Texte &brut"_s);
    QVERIFY(!Prete<DToolButtonRiche>(u"outilInactif"_s)->isEnabled());
    auto const & avecMenu = *Prete<DToolButtonRiche>(u"outilMenu"_s);
    QVERIFY(avecMenu.menu());
    QVERIFY(avecMenu.width() > avecMenu.sizeHint().width()); // the text is not under the arrow

    QTest::mouseClick(Prete<DToolButtonRiche>(u"outilHtml"_s), Qt::LeftButton);

    QCOMPARE(DonneTrace(), QStringList{u"DToolButtonRiche::clicked(false)"_s});
}

void tst_PageBoutons::boutonsSansFleche()
{
    QSet<int> modes;
    for (DBoutonSansFleche const * const bouton : maPage->findChildren<DBoutonSansFleche *>()) {
        QVERIFY(bouton->menu());
        modes.insert(bouton->popupMode());
    }
    QCOMPARE(modes, (QSet<int>{QToolButton::DelayedPopup, QToolButton::MenuButtonPopup,
                               QToolButton::InstantPopup}));
}

void tst_PageBoutons::actionDUnMenu()
{
    maPage->findChild<DBoutonSansFleche *>()->menu()->actions().first()->trigger();

    QCOMPARE(DonneTrace(), QStringList{u"QMenu::triggered(Une action)"_s});
}

void tst_PageBoutons::groupesExclusifs()
{
    QList<int> tailles;
    for (auto * const controle : maPage->findChildren<DControleBoutonsExclusifs *>())
        tailles.append(static_cast<int>(controle->findChildren<QAbstractButton *>().size()));
    std::sort(tailles.begin(), tailles.end());
    QCOMPARE(tailles, (QList<int>{2, 3, 5}));
    auto * const cinq = Prete<QAbstractButton>(u"exclusif_5"_s);
    auto const & notes = *qobject_cast<DControleBoutonsExclusifs *>(cinq->parentWidget());
    QCOMPARE(notes.DonneIdentifiantCochay(), QVariant(3));

    QTest::mouseClick(cinq, Qt::LeftButton);

    QCOMPARE(notes.DonneIdentifiantCochay(), QVariant(5));
    QCOMPARE(DonneTrace(), (QStringList{u"DControleBoutonsExclusifs::toggled(false)"_s,
                                        u"DControleBoutonsExclusifs::toggled(true)"_s}));
}

void tst_PageBoutons::partieDuMenu()
{
    auto * const bouton = Prete<QAbstractButton>(u"exclusif_semaine"_s);

    QTest::keyClick(bouton, Qt::Key_F4);

    QStringList const trace{u"DControleBoutonsExclusifs::menuCliquay(semaine)"_s};
    QCOMPARE(DonneTrace(), trace);

    Prete<QCheckBox>(u"partieMenu"_s)->setChecked(false);
    QTest::keyClick(bouton, Qt::Key_F4);

    QCOMPARE(DonneTrace(), trace); // there is no such part any longer
}

void tst_PageBoutons::imageEtEtiquetteCliquables()
{
    auto * const image = maPage->findChild<DImageCliquable *>();
    QVERIFY(!image->accessibleName().isEmpty());

    QTest::mousePress(image, Qt::LeftButton);
    QTest::mouseDClick(image, Qt::LeftButton);
    QTest::mousePress(maPage->findChild<DLabelClickable *>(), Qt::LeftButton);

    QStringList const trace = DonneTrace();
    QVERIFY(trace.contains(u"DImageCliquable::SignalImageCliquee()"_s));
    QCOMPARE(trace.count(u"DImageCliquable::SignalImageDoubleCliquee()"_s), 1);
    QCOMPARE(trace.last(), u"DLabelClickable::SignalCliquer()"_s);
}

void tst_PageBoutons::etiquetteAbregeeCliquable_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::newRow("French") << kLangueFrancais;
    QTest::newRow("English") << kLangueAnglais;
}

void tst_PageBoutons::etiquetteAbregeeCliquable()
{
    QFETCH(eLangue, langue);
    Traductions::MetsLanguePourApplicationCourante(langue);
    maPage = std::make_unique<PageBoutons>();
    maPage->show();
    QVERIFY(QTest::qWaitForWindowExposed(maPage.get()));
    auto * const etiquette = maPage->findChild<DLabelElisionClickable *>();
    QVERIFY(etiquette->EstEliday());
    QVERIFY(!etiquette->DonneTexte().contains(u'<'));

    QTest::mousePress(etiquette, Qt::LeftButton);

    QCOMPARE(DonneTrace(), QStringList{u"DLabelElisionClickable::SignalCliquer()"_s});
}

QTEST_MAIN(tst_PageBoutons)
#include "tst_PageBoutons.moc"
