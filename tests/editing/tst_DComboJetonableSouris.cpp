// tests/editing/tst_DComboJetonableSouris.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"
#include "style/DStyleProxy.h"

#include <QtTest>

#include <memory>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

class tst_DComboJetonableSouris : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void clicSurLIcone_data();
    void clicSurLIcone();
    void texteAvantLeJeton();
    void clicSurLaFleche();
    void suppressionDesactivee();
    void clicACoteDeLIcone();
    void clicDansLeChamp();
    void autresBoutons();
    void rienAvantLeRelachement();
    void champSousLIcone_data();
    void champSousLIcone();
    void champSousLIconeApresUnChangement_data();
    void champSousLIconeApresUnChangement();
    void moletteSansEffet();
    void selectionAuPremierClic();
    void selectionGardee();
    void selectionSeulementUneFois();
    void selectionEnTirant();
    void positionSuivie();
    void positionOublieeALaSortie();
    void positionDuChampTraduite();
    void rienNEstConsomme();
    void destructionDansLeChamp();

private:
    void Montre(DComboJetonable * combo, int largeur);
    // What the mouse finds there, as the combo box itself would not tell.
    void Clique(QPoint const & position, Qt::MouseButton bouton = Qt::LeftButton);

    Icones mesIcones;
    std::unique_ptr<QWidget> maFenetre;
    DComboJetonable * monCombo = nullptr;
};

void tst_DComboJetonableSouris::init()
{
    maFenetre = std::make_unique<QWidget>();
    maFenetre->resize(700, 100);
}

void tst_DComboJetonableSouris::cleanup()
{
    maFenetre.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboJetonableSouris::Montre(DComboJetonable * combo, int largeur)
{
    monCombo = combo;
    combo->setParent(maFenetre.get());
    combo->setGeometry(10, 10, largeur, 30);
    maFenetre->show();
    QVERIFY(QTest::qWaitForWindowExposed(maFenetre.get()));
}

void tst_DComboJetonableSouris::Clique(QPoint const & position, Qt::MouseButton bouton)
{
    QTest::mouseClick(maFenetre->windowHandle(), bouton, {},
                      monCombo->mapTo(maFenetre.get(), position));
}

void tst_DComboJetonableSouris::clicSurLIcone_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("jeton");
    QTest::newRow("text") << u"texte"_s << QString();
    QTest::newRow("token") << QString() << u"jeton"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_DComboJetonableSouris::clicSurLIcone()
{
    QFETCH(QString, texte);
    QFETCH(QString, jeton);
    Montre(CreeAvecIcones(mesIcones), 300);
    monCombo->setEditText(texte);
    if (!jeton.isEmpty())
        monCombo->PrendsTexteJeton(jeton, u"infobulle"_s);
    QStringList journal;
    connect(monCombo, &DComboJetonable::SignalBoutonXAppuyay, this, [&] {
        bool const plein = !monCombo->currentText().isEmpty() || monCombo->UnJetonEstActif();
        journal += plein ? u"icône, plein"_s : u"icône, vide"_s;
    });
    connect(monCombo, &DComboJetonable::SignalShowPopup, this, [&] {
        bool const plein = !monCombo->currentText().isEmpty() || monCombo->UnJetonEstActif();
        journal += plein ? u"demande, plein"_s : u"demande, vide"_s;
    });

    Clique(monCombo->DonneRectIcone().center());

    bool const vide = texte.isEmpty() && jeton.isEmpty();
    QCOMPARE(journal,
             QStringList({vide ? u"icône, vide"_s : u"icône, plein"_s, u"demande, vide"_s}));
    QCOMPARE(monCombo->currentText(), QString());
    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->lineEdit()->toolTip(), QString());
}

void tst_DComboJetonableSouris::texteAvantLeJeton()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    monCombo->setEditText(u"texte"_s);
    QStringList journal;
    connect(monCombo, &QComboBox::editTextChanged, this, [&] { journal += u"texte"_s; });
    connect(monCombo, &DComboJetonable::SignalJetonChangay, this, [&] { journal += u"jeton"_s; });

    Clique(monCombo->DonneRectIcone().center());

    QCOMPARE(journal, QStringList({u"texte"_s, u"jeton"_s}));
}

void tst_DComboJetonableSouris::clicSurLaFleche()
{
    Montre(CreeSansIcones(), 300);
    monCombo->setEditText(u"texte"_s);
    QSignalSpy const icone(monCombo, &DComboJetonable::SignalBoutonXAppuyay);
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);
    QPoint const fleche(290, 15);
    QVERIFY(monCombo->PosEstDansRectIcone(fleche));

    Clique(fleche);

    QCOMPARE(icone.count(), 1);
    QCOMPARE(demandes.count(), 1);
    QCOMPARE(monCombo->currentText(), QString()); // the arrow empties the field too
    QVERIFY(!monCombo->view()->isVisible());
}

void tst_DComboJetonableSouris::suppressionDesactivee()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    monCombo->DesactiveSuppression();
    monCombo->setEditText(u"texte"_s);
    QSignalSpy const icone(monCombo, &DComboJetonable::SignalBoutonXAppuyay);
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);

    Clique(monCombo->DonneRectIcone().center());

    QCOMPARE(monCombo->currentText(), u"texte"_s);
    QCOMPARE(icone.count(), 1);
    QCOMPARE(demandes.count(), 1);

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    Clique(monCombo->DonneRectIcone().center());

    QVERIFY(monCombo->UnJetonEstActif());
    QCOMPARE(demandes.count(), 2);
}

void tst_DComboJetonableSouris::clicACoteDeLIcone()
{
    Montre(CreeAvecIcones(mesIcones), 400);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QSignalSpy const icone(monCombo, &DComboJetonable::SignalBoutonXAppuyay);
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);

    Clique(QPoint(monCombo->lineEdit()->geometry().right() + 50, 15));
    Clique(QPoint(monCombo->DonneRectIcone().left() - 1, 15));
    Clique(QPoint(399, 15));

    QCOMPARE(icone.count(), 0);
    QCOMPARE(demandes.count(), 3);
    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableSouris::clicDansLeChamp()
{
    Montre(CreeSansIcones(), 300);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);

    Clique(QPoint(20, 15));

    QCOMPARE(demandes.count(), 1);
    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableSouris::autresBoutons()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QSignalSpy const icone(monCombo, &DComboJetonable::SignalBoutonXAppuyay);
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);

    for (Qt::MouseButton const bouton : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        Clique(monCombo->DonneRectIcone().center(), bouton);
        Clique(QPoint(250, 15), bouton);
        if (bouton != Qt::MiddleButton) // it pastes
            Clique(QPoint(20, 15), bouton);
    }

    QCOMPARE(icone.count(), 0);
    QCOMPARE(demandes.count(), 0);
    QVERIFY(monCombo->UnJetonEstActif());
    // They go on to what is around.
    for (QEvent::Type const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent droit(type, monCombo->DonneRectIcone().center(), QPointF(), Qt::RightButton,
                          Qt::NoButton, Qt::NoModifier);
        static_cast<QObject *>(monCombo)->event(&droit);
        QVERIFY(!droit.isAccepted());
    }
}

void tst_DComboJetonableSouris::rienAvantLeRelachement()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);

    QTest::mousePress(maFenetre->windowHandle(), Qt::LeftButton, {},
                      monCombo->mapTo(maFenetre.get(), monCombo->DonneRectIcone().center()));

    QCOMPARE(demandes.count(), 0); // a pop-up of the host would take the release
    QVERIFY(!monCombo->view()->isVisible());
    QTest::mouseRelease(maFenetre->windowHandle(), Qt::LeftButton, {},
                        monCombo->mapTo(maFenetre.get(), monCombo->DonneRectIcone().center()));
    QCOMPARE(demandes.count(), 1);
}

void tst_DComboJetonableSouris::champSousLIcone_data()
{
    QTest::addColumn<bool>("styleDeLaBibliotheque");
    QTest::addColumn<int>("largeur");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    for (bool const proxy : {false, true})
        for (int const largeur : {40, 80, 150, 190, 200, 230, 500})
            for (auto const sens : {Qt::LeftToRight, Qt::RightToLeft})
                QTest::addRow("%s, width %d, %s", proxy ? "library's style" : "Fusion", largeur,
                              sens == Qt::LeftToRight ? "left to right" : "right to left")
                    << proxy << largeur << sens;
}

void tst_DComboJetonableSouris::champSousLIcone()
{
    QFETCH(bool, styleDeLaBibliotheque);
    QFETCH(int, largeur);
    QFETCH(Qt::LayoutDirection, sens);
    QStyle * const fusion = QStyleFactory::create(u"Fusion"_s);
    std::unique_ptr<QStyle> const style(styleDeLaBibliotheque ? new DStyleProxy(fusion) : fusion);
    auto * const combo = CreeAvecIcones(mesIcones);
    combo->setLayoutDirection(sens);
    combo->setStyle(style.get());
    Montre(combo, largeur);
    combo->setEditText(u"texte"_s);
    QRect const icone = combo->DonneRectIcone();

    QVERIFY(!combo->lineEdit()->geometry().intersects(icone.translated(-5, 0)));
    QVERIFY(!combo->lineEdit()->geometry().intersects(icone));
    QVERIFY(combo->lineEdit()->width() <= 175);
    for (int x = icone.left() - 5; x <= icone.right() - 5; ++x)
        QCOMPARE(combo->grab().toImage().pixelColor(x, icone.center().y()), kSupprime);
    Clique(icone.topLeft());
    QCOMPARE(combo->currentText(), QString());
    maFenetre.reset(); // before its style
}

void tst_DComboJetonableSouris::champSousLIconeApresUnChangement_data()
{
    QTest::addColumn<bool>("styleDeLaBibliotheque");
    QTest::newRow("Fusion") << false;
    QTest::newRow("library's style") << true;
}

void tst_DComboJetonableSouris::champSousLIconeApresUnChangement()
{
    QFETCH(bool, styleDeLaBibliotheque);
    QStyle * const fusion = QStyleFactory::create(u"Fusion"_s);
    std::unique_ptr<QStyle> const style(styleDeLaBibliotheque ? new DStyleProxy(fusion) : fusion);
    std::unique_ptr<QStyle> const autre(new DStyleProxy(QStyleFactory::create(u"Windows"_s)));
    auto * const combo = CreeAvecIcones(mesIcones);
    combo->setStyle(style.get());
    auto const cachee = [combo] {
        QRect const champ = combo->lineEdit()->geometry();
        QRect const icone = combo->DonneRectIcone().adjusted(-5, 0, 0, 0);
        return !champ.isEmpty() && champ.intersects(icone);
    };
    Montre(combo, 150);

    // By any width: the style may then give the field the size that it has already.
    for (int moins = 1; moins < 150; ++moins) {
        combo->resize(150, 30);
        combo->resize(150 - moins, 30);
        QVERIFY2(!cachee(), qPrintable(u"%1 less"_s.arg(moins)));
    }
    // Nor does a new direction need to change the size.
    for (int icone = 4; icone < 40; ++icone) {
        combo->setIconSize(QSize(icone, 10));
        combo->resize(140, 30);
        combo->resize(150, 30);
        for (auto const sens : {Qt::RightToLeft, Qt::LeftToRight}) {
            combo->setLayoutDirection(sens);
            QVERIFY2(!cachee(), qPrintable(u"icon of %1"_s.arg(icone)));
        }
    }
    // A bigger icon alone changes no size, and a smaller one gives the field its room back.
    int const avant = combo->lineEdit()->width();
    combo->setIconSize(QSize(60, 10));
    QTRY_VERIFY(!cachee());
    combo->setIconSize(QSize(39, 10));
    QTRY_COMPARE(combo->lineEdit()->width(), avant);
    // With more room for the field than before.
    combo->setStyle(nullptr);
    combo->setStyle(autre.get());
    QVERIFY(!cachee());
    maFenetre.reset(); // before its styles
}

void tst_DComboJetonableSouris::moletteSansEffet()
{
    Montre(CreeSansIcones(), 300);
    monCombo->addItems({u"un"_s, u"deux"_s, u"trois"_s});
    monCombo->setCurrentIndex(1);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    for (int const delta : {120, -120}) {
        QWheelEvent molette(QPointF(5, 5), monCombo->mapToGlobal(QPointF(5, 5)), {}, {0, delta},
                            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(monCombo, &molette);
        QVERIFY(!molette.isAccepted()); // what is around scrolls
    }
    QCOMPARE(monCombo->currentIndex(), 1);
    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableSouris::selectionAuPremierClic()
{
    Montre(CreeSansIcones(), 300);
    monCombo->setEditText(u"quelques mots"_s);
    QFocusEvent entree(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(monCombo, &entree);

    Clique(QPoint(20, 15));

    QCOMPARE(monCombo->lineEdit()->selectedText(), u"quelques mots"_s);
}

void tst_DComboJetonableSouris::selectionGardee()
{
    Montre(CreeSansIcones(), 300);
    monCombo->setEditText(u"quelques mots"_s);
    QFocusEvent entree(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(monCombo, &entree);
    monCombo->lineEdit()->setSelection(0, 3);

    QTest::mouseRelease(monCombo->lineEdit(), Qt::LeftButton);

    QCOMPARE(monCombo->lineEdit()->selectedText(), u"que"_s);
}

void tst_DComboJetonableSouris::selectionSeulementUneFois()
{
    Montre(CreeSansIcones(), 300);
    monCombo->setEditText(u"quelques mots"_s);
    QFocusEvent entree(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(monCombo, &entree);

    QTest::mouseRelease(monCombo->lineEdit(), Qt::RightButton);
    QCOMPARE(monCombo->lineEdit()->selectedText(), u"quelques mots"_s);
    monCombo->lineEdit()->deselect();
    QTest::mouseRelease(monCombo->lineEdit(), Qt::LeftButton);

    QCOMPARE(monCombo->lineEdit()->selectedText(), QString());
}

void tst_DComboJetonableSouris::selectionEnTirant()
{
    Montre(CreeSansIcones(), 300);
    monCombo->setEditText(u"mots"_s);
    QWidget & champ = PreteChamp(*monCombo);

    QTest::mousePress(&champ, Qt::LeftButton, {}, QPoint(0, 5));
    QPointF const bout(champ.width() - 1, 5);
    QMouseEvent tire(QEvent::MouseMove, bout, champ.mapToGlobal(bout), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&champ, &tire);
    QTest::mouseRelease(&champ, Qt::LeftButton, {}, bout.toPoint());

    QCOMPARE(monCombo->lineEdit()->selectedText(), u"mots"_s);
}

void tst_DComboJetonableSouris::positionSuivie()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    QPoint const icone = monCombo->mapTo(maFenetre.get(), monCombo->DonneRectIcone().center());
    QTest::mouseMove(maFenetre->windowHandle(), QPoint(1, 1));
    QCOMPARE(DonneCouleurIcone(*monCombo), kNormale);

    QTest::mouseMove(maFenetre->windowHandle(), icone);
    QTRY_COMPARE(DonneCouleurIcone(*monCombo), kNormaleHover);

    QTest::mouseMove(maFenetre->windowHandle(), icone - QPoint(30, 0));
    QTRY_COMPARE(DonneCouleurIcone(*monCombo), kNormale);
}

void tst_DComboJetonableSouris::positionOublieeALaSortie()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    QPoint const icone = monCombo->mapTo(maFenetre.get(), monCombo->DonneRectIcone().center());
    QTest::mouseMove(maFenetre->windowHandle(), icone);
    QTRY_COMPARE(DonneCouleurIcone(*monCombo), kNormaleHover);

    QTest::mouseMove(maFenetre->windowHandle(), QPoint(650, 90));

    QTRY_COMPARE(DonneCouleurIcone(*monCombo), kNormale);
}

void tst_DComboJetonableSouris::positionDuChampTraduite()
{
    Montre(CreeAvecIcones(mesIcones), 60);
    monCombo->setLayoutDirection(Qt::RightToLeft);
    // The field begins some way into the combo box; a point of it that would be in the icon if the
    // combo box had that.
    monCombo->lineEdit()->setGeometry(15, 0, 20, 30);
    QPoint const icone = monCombo->DonneRectIcone().center();
    for (QPoint const & point : {icone, icone - QPoint(15, 0)}) {
        QMouseEvent mouvement(QEvent::MouseMove, point, monCombo->lineEdit()->mapToGlobal(point),
                              Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(monCombo->lineEdit(), &mouvement);
        bool const dedans = monCombo->DonneRectIcone().contains(point + QPoint(15, 0));
        QCOMPARE(DonneCouleurIcone(*monCombo), dedans ? kNormaleHover : kNormale);
    }
}

void tst_DComboJetonableSouris::rienNEstConsomme()
{
    Montre(CreeAvecIcones(mesIcones), 300);
    QMouseEvent mouvement(QEvent::MouseMove, QPointF(5, 5), QPointF(), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
    QVERIFY(!monCombo->eventFilter(monCombo, &mouvement));
    QVERIFY(!monCombo->eventFilter(monCombo->lineEdit(), &mouvement));
    QVERIFY(!monCombo->eventFilter(maFenetre.get(), &mouvement));

    // What comes of others is no position in the combo box.
    QMouseEvent dAutrui(QEvent::MouseMove, monCombo->DonneRectIcone().center(), QPointF(),
                        Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QVERIFY(!monCombo->eventFilter(maFenetre.get(), &dAutrui));
    QCOMPARE(DonneCouleurIcone(*monCombo), kNormale);
}

void tst_DComboJetonableSouris::destructionDansLeChamp()
{
    Montre(CreeSansIcones(), 300);
    QPointer<DComboJetonable> const combo(monCombo);
    connect(monCombo, &DComboJetonable::SignalShowPopup, this, [&combo] { delete combo; });

    Clique(QPoint(20, 15));

    QVERIFY(!combo);
}

QTEST_MAIN(tst_DComboJetonableSouris)
#include "tst_DComboJetonableSouris.moc"
