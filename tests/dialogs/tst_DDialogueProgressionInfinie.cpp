// tests/dialogs/tst_DDialogueProgressionInfinie.cpp
#include "dialogs/DDialogueProgressionInfinie.h"

#include "desktop/DorvelWidgetCentrageNatif.h"
#include "dialogs/DAlerte.h"
#include "foundation/ThemesQt.h"
#include "noyau/DAlerteInfo.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>

#include <QAccessible>

#include <memory>

using namespace Qt::StringLiterals;
using DDialogue::kBoutonOk;

namespace {

constexpr Qt::WindowFlags kDrapeaux = Qt::ToolTip | Qt::FramelessWindowHint;

// Counts how often it is painted.
class CompteurPeinture : public QObject
{
public:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        compte += evenement->type() == QEvent::Paint;
        return false;
    }
    int compte = 0;
};

} // namespace

class tst_DDialogueProgressionInfinie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void reglages();
    void ordre();
    void barreOccupee();
    void largeurMinimale();
    void bordure_data();
    void bordure();
    void textes_data();
    void textes();
    void texteLongElargit();
    void sansBoutonsCadreSansHauteur();
    void secondTexteVideGardeSaLigne();
    void boutonsADroite();
    void boutonNul();

    void rafraichissementDepuisLAffichage();
    void rafraichirRedessineLaBarre();
    void horsDesFenetresToujoursVisibles();
    void sansFocus();
    void detruitASaFermeture_data();
    void detruitASaFermeture();

    void parentOrdinaire();
    void sansParent();
    void parentNatif();
    void parentNatifSousSaBase();
    void parentNatifNul();
    void parentNatifQuiFerme_data();
    void parentNatifQuiFerme();
    void lecteursDEcran();
    void centreParLAlerte();

private:
    // Owned by the test until it closes.
    DDialogueProgressionInfinie * Cree(QString const & texte = u"texte"_s,
                                       QString const & secondaire = u"second"_s);
    QFrame * Cadre() const;
    QLabel * Etiquette(int place) const;

    std::unique_ptr<PlateformeFenetres> maPlateforme;
    FenetresSimulees * mesFenetres = nullptr;
    QPointer<DDialogueProgressionInfinie> monDialogue;
};

void tst_DDialogueProgressionInfinie::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    maPlateforme = PlateformeFenetres::Installe(std::move(fenetres));
}

void tst_DDialogueProgressionInfinie::cleanup()
{
    delete monDialogue;
    ThemesQt::DetruisToi();
    PlateformeFenetres::Installe(std::move(maPlateforme));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

DDialogueProgressionInfinie * tst_DDialogueProgressionInfinie::Cree(QString const & texte,
                                                                    QString const & secondaire)
{
    delete monDialogue;
    monDialogue = new DDialogueProgressionInfinie(static_cast<QWidget *>(nullptr), texte,
                                                  secondaire, kDrapeaux);
    return monDialogue;
}

QFrame * tst_DDialogueProgressionInfinie::Cadre() const
{
    return qobject_cast<QFrame *>(monDialogue->layout()->itemAt(3)->widget());
}

QLabel * tst_DDialogueProgressionInfinie::Etiquette(int place) const
{
    return qobject_cast<QLabel *>(monDialogue->layout()->itemAt(place)->widget());
}

void tst_DDialogueProgressionInfinie::reglages()
{
    DDialogueProgressionInfinie const & dialogue = *Cree();
    QCOMPARE(dialogue.objectName(), u"DialoguePatience"_s);
    QCOMPARE(dialogue.windowModality(), Qt::NonModal);
    QCOMPARE(dialogue.focusPolicy(), Qt::NoFocus);
    QVERIFY(dialogue.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(dialogue.testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(dialogue.windowType(), Qt::ToolTip);
    QVERIFY(dialogue.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!dialogue.isVisible());
}

void tst_DDialogueProgressionInfinie::ordre()
{
    DDialogueProgressionInfinie const & dialogue = *Cree();
    QVERIFY(qobject_cast<QVBoxLayout *>(dialogue.layout()));
    QVERIFY(Etiquette(0));
    QVERIFY(qobject_cast<QProgressBar *>(dialogue.layout()->itemAt(1)->widget()));
    QVERIFY(Etiquette(2));
    QCOMPARE(Cadre()->metaObject()->className(), "QFrame");
    auto const * const boutons = qobject_cast<QHBoxLayout *>(Cadre()->layout());
    QVERIFY(boutons);
    QCOMPARE(boutons->contentsMargins(), QMargins());
    QCOMPARE(boutons->count(), 1);
    QVERIFY(boutons->itemAt(0)->spacerItem());
    QCOMPARE(boutons->stretch(0), 1);
}

void tst_DDialogueProgressionInfinie::barreOccupee()
{
    auto const * const barre = Cree()->findChild<QProgressBar *>();
    QCOMPARE(barre->minimum(), 0);
    QCOMPARE(barre->maximum(), 0);
    QVERIFY(!barre->isTextVisible());
    QCOMPARE(barre->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(barre->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_DDialogueProgressionInfinie::largeurMinimale()
{
    DDialogueProgressionInfinie & dialogue = *Cree(u"a"_s, {});
    dialogue.show();
    dialogue.resize(1, 1);
    QMargins const marges = dialogue.layout()->contentsMargins();
    QCOMPARE(dialogue.width(), 200 + marges.left() + marges.right());
}

void tst_DDialogueProgressionInfinie::bordure_data()
{
    QTest::addColumn<Qt::WindowFlags>("drapeaux");
    QTest::addColumn<bool>("bordure");
    QTest::newRow("none of the window system's") << kDrapeaux << true;
    QTest::newRow("framed") << Qt::WindowFlags(Qt::Dialog) << false;
}

void tst_DDialogueProgressionInfinie::bordure()
{
    QFETCH(Qt::WindowFlags, drapeaux);
    QFETCH(bool, bordure);
    monDialogue =
        new DDialogueProgressionInfinie(static_cast<QWidget *>(nullptr), u"texte"_s, {}, drapeaux);
    QImage const image = monDialogue->grab().toImage();
    QColor const attendue = bordure ? ThemesQt::Instance()->DonneCouleur(u"couleurBordureGeneral"_s)
                                    : image.pixelColor(3, 3);
    QVERIFY(!bordure || attendue != image.pixelColor(1, 1));
    for (QPoint const point : {image.rect().topLeft(), image.rect().bottomRight(),
                               QPoint(image.width() / 2, 0), QPoint(0, image.height() / 2)})
        QCOMPARE(image.pixelColor(point), attendue);
}

void tst_DDialogueProgressionInfinie::textes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("secondaire");
    QTest::newRow("both") << u"Patientez"_s << u"3 fichiers"_s;
    QTest::newRow("no second one") << u"Patientez"_s << QString();
    QTest::newRow("neither") << QString() << QString();
    QTest::newRow("as they are") << u"<b>a</b> & b"_s << u"c\nd"_s;
}

void tst_DDialogueProgressionInfinie::textes()
{
    QFETCH(QString, texte);
    QFETCH(QString, secondaire);
    Cree(texte, secondaire);
    QCOMPARE(Etiquette(0)->text(), texte);
    QCOMPARE(Etiquette(2)->text(), secondaire);

    Cree(u"avant"_s, u"avant aussi"_s);
    monDialogue->PrendsTexte(texte);
    QCOMPARE(Etiquette(0)->text(), texte);
    QCOMPARE(Etiquette(2)->text(), u"avant aussi"_s);
    monDialogue->PrendsTexteSecondaire(secondaire);
    QCOMPARE(Etiquette(0)->text(), texte);
    QCOMPARE(Etiquette(2)->text(), secondaire);
}

void tst_DDialogueProgressionInfinie::texteLongElargit()
{
    DDialogueProgressionInfinie & dialogue = *Cree();
    dialogue.show();
    dialogue.PrendsTexte(u"mot "_s.repeated(200));
    QTRY_VERIFY(Etiquette(0)->width() >= Etiquette(0)->sizeHint().width());
}

void tst_DDialogueProgressionInfinie::sansBoutonsCadreSansHauteur()
{
    Cree()->show();
    QVERIFY(Cadre()->isVisible());
    QCOMPARE(Cadre()->height(), 0);
    QVERIFY(monDialogue->findChildren<QAbstractButton *>().isEmpty());
}

void tst_DDialogueProgressionInfinie::secondTexteVideGardeSaLigne()
{
    Cree(u"texte"_s, {})->show();
    QCOMPARE(Etiquette(2)->height(), Etiquette(0)->height());
    QVERIFY(Etiquette(2)->isVisible());
}

void tst_DDialogueProgressionInfinie::boutonsADroite()
{
    DDialogueProgressionInfinie & dialogue = *Cree();
    auto * const premier = new QPushButton(u"1"_s);
    auto * const second = new QToolButton;
    dialogue.AjouterBouton(premier);
    dialogue.AjouterBouton(second);
    dialogue.show();

    QLayout * const boutons = Cadre()->layout();
    QCOMPARE(boutons->count(), 3);
    QVERIFY(boutons->itemAt(0)->spacerItem());
    QCOMPARE(boutons->itemAt(1)->widget(), premier);
    QCOMPARE(boutons->itemAt(2)->widget(), second);
    QCOMPARE(premier->parentWidget(), Cadre());
    QVERIFY(premier->x() < second->x());
    QCOMPARE(second->geometry().right(), Cadre()->rect().right());
}

void tst_DDialogueProgressionInfinie::boutonNul()
{
    Cree()->AjouterBouton(nullptr);
    QCOMPARE(Cadre()->layout()->count(), 1);
}

void tst_DDialogueProgressionInfinie::rafraichissementDepuisLAffichage()
{
    DDialogueProgressionInfinie & dialogue = *Cree();
    auto const minuteries = dialogue.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(minuteries.size(), 1);
    QCOMPARE(minuteries.first()->interval(), 25);
    QVERIFY(!minuteries.first()->isSingleShot());
    QVERIFY(!minuteries.first()->isActive());

    dialogue.show();
    QVERIFY(minuteries.first()->isActive());
    QSignalSpy battements(minuteries.first(), &QTimer::timeout);
    QTRY_VERIFY(battements.count() >= 3);
}

void tst_DDialogueProgressionInfinie::rafraichirRedessineLaBarre()
{
    DDialogueProgressionInfinie & dialogue = *Cree();
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue));
    auto * const barre = dialogue.findChild<QProgressBar *>();
    dialogue.findChild<QTimer *>()->stop();
    barre->setRange(0, 1); // a style animates a busy bar by itself
    CompteurPeinture compteur;
    barre->installEventFilter(&compteur);
    // Only what the widgets have asked for: the window system paints when it likes.
    auto const peins = [&compteur] {
        compteur.compte = 0;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        return compteur.compte;
    };
    peins();
    QCOMPARE(peins(), 0);
    dialogue.PriseRafraichir();
    QCOMPARE(peins(), 1);
}

void tst_DDialogueProgressionInfinie::horsDesFenetresToujoursVisibles()
{
    DDialogueProgressionInfinie & dialogue = *Cree();
    auto const poignee = reinterpret_cast<HWND>(dialogue.winId());
    mesFenetres->Ajoute(
        poignee,
        {.classe = u"Patience"_s, .styleEtendu = WS_EX_TOPMOST, .client = QRect(1, 2, 3, 4)});
    mesFenetres->appels.clear();

    dialogue.show();

    QCOMPARE(mesFenetres->appels, QStringList{u"SetWindowPos(Patience, HWND_NOTOPMOST, 0x13)"_s});
    QCOMPARE(mesFenetres->Prete(poignee).styleEtendu & WS_EX_TOPMOST, 0U);
    QCOMPARE(mesFenetres->Prete(poignee).client, QRect(1, 2, 3, 4));
    dialogue.hide();
    dialogue.show();
    QCOMPARE(mesFenetres->appels.size(), 2);
}

void tst_DDialogueProgressionInfinie::sansFocus()
{
    QWidget fenetre;
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    Cree()->show();
    QVERIFY(QTest::qWaitForWindowExposed(monDialogue));
    QVERIFY(fenetre.isActiveWindow());
}

void tst_DDialogueProgressionInfinie::detruitASaFermeture_data()
{
    QTest::addColumn<bool>("montre");
    QTest::newRow("shown") << true;
    QTest::newRow("never shown") << false;
}

void tst_DDialogueProgressionInfinie::detruitASaFermeture()
{
    QFETCH(bool, montre);
    DDialogueProgressionInfinie & dialogue = *Cree();
    dialogue.setVisible(montre);
    dialogue.PriseFermerDialogue();
    QTRY_VERIFY(monDialogue.isNull());
}

void tst_DDialogueProgressionInfinie::parentOrdinaire()
{
    QWidget parent;
    monDialogue = new DDialogueProgressionInfinie(&parent, u"texte"_s, {}, kDrapeaux);
    QCOMPARE(monDialogue->parentWidget(), &parent);
    QVERIFY(monDialogue->isWindow());
}

void tst_DDialogueProgressionInfinie::sansParent()
{
    QVERIFY(!Cree()->parentWidget());
    monDialogue->show();
    QVERIFY(monDialogue->isVisible());
}

void tst_DDialogueProgressionInfinie::parentNatif()
{
    DorvelWidgetCentrageNatif hote(nullptr);
    monDialogue = new DDialogueProgressionInfinie(&hote, u"texte"_s, u"second"_s, kDrapeaux);
    QCOMPARE(monDialogue->parentWidget(), hote.PreteFenetreCentrage());
    QCOMPARE(Etiquette(0)->text(), u"texte"_s);
    QCOMPARE(Etiquette(2)->text(), u"second"_s);
}

void tst_DDialogueProgressionInfinie::parentNatifSousSaBase()
{
    DorvelWidgetCentrageNatif hote(nullptr);
    monDialogue =
        new DDialogueProgressionInfinie(static_cast<QWidget *>(&hote), u"texte"_s, {}, kDrapeaux);
    QCOMPARE(monDialogue->parentWidget(), &hote);
    Q_EMIT hote.SignalFermerDialogue();
    QTRY_VERIFY(monDialogue.isNull());
}

void tst_DDialogueProgressionInfinie::parentNatifNul()
{
    monDialogue = new DDialogueProgressionInfinie(static_cast<DorvelWidgetCentrageNatif *>(nullptr),
                                                  u"texte"_s, {}, kDrapeaux);
    QVERIFY(!monDialogue->parentWidget());
    QCOMPARE(Etiquette(0)->text(), u"texte"_s);
}

void tst_DDialogueProgressionInfinie::parentNatifQuiFerme_data()
{
    detruitASaFermeture_data();
}

void tst_DDialogueProgressionInfinie::parentNatifQuiFerme()
{
    QFETCH(bool, montre);
    DorvelWidgetCentrageNatif hote(nullptr);
    monDialogue = new DDialogueProgressionInfinie(&hote, u"texte"_s, {}, kDrapeaux);
    monDialogue->setVisible(montre);
    Q_EMIT hote.SignalFermerDialogue();
    QTRY_VERIFY(monDialogue.isNull());
    Q_EMIT hote.SignalFermerDialogue(); // nobody hears it any more
}

void tst_DDialogueProgressionInfinie::lecteursDEcran()
{
    DDialogueProgressionInfinie & dialogue = *Cree(u"<b>Envoi</b> &amp; réception"_s, u"3 < 4"_s);
    auto const nom = [](QWidget * widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    QCOMPARE(nom(&dialogue), u"Envoi & réception"_s);
    QCOMPARE(nom(dialogue.findChild<QProgressBar *>()), u"Envoi & réception"_s);
    QCOMPARE(dialogue.accessibleDescription(), u"3 < 4"_s);

    dialogue.PrendsTexte(u"Presque fini"_s);
    dialogue.PrendsTexteSecondaire({});
    QCOMPARE(nom(&dialogue), u"Presque fini"_s);
    QCOMPARE(nom(dialogue.findChild<QProgressBar *>()), u"Presque fini"_s);
    QCOMPARE(dialogue.accessibleDescription(), QString());
}

void tst_DDialogueProgressionInfinie::centreParLAlerte()
{
    QWidget parent(nullptr, Qt::FramelessWindowHint);
    parent.setGeometry(150, 120, 500, 400);
    parent.show();
    DAlerteInfo const info(DAlerteInfo::kProgressionInfinie, UniChaine("Envoi"), UniChaine("note"));

    DAlerte(&parent, info, kBoutonOk, kBoutonOk, kBoutonOk, RappelAlerte());

    monDialogue = parent.findChild<DDialogueProgressionInfinie *>();
    QVERIFY(monDialogue);
    QVERIFY(monDialogue->isVisible());
    QCOMPARE(monDialogue->windowFlags() & kDrapeaux, kDrapeaux);
    QCOMPARE(Etiquette(0)->text(), u"Envoi"_s);
    QCOMPARE(Etiquette(2)->text(), u" note"_s);
    QPoint const ecart = monDialogue->geometry().center() - parent.geometry().center();
    QVERIFY(ecart.manhattanLength() <= 2);
}

QTEST_MAIN(tst_DDialogueProgressionInfinie)
#include "tst_DDialogueProgressionInfinie.moc"
