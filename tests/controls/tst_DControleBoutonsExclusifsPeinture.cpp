// tests/controls/tst_DControleBoutonsExclusifsPeinture.cpp
#include "controls/DBoutonAvecMenu_p.h"
#include "controls/DControleBoutonsExclusifs.h"

#include "controls/RenduBoutons.h"
#include "foundation/ThemesQt.h"
#include "style/DStyleProxy.h"

#include <QLayout>
#include <QStyleFactory>
#include <QtTest>

using namespace Qt::StringLiterals;
using RenduBoutons::Rendu;

namespace {

constexpr QColor kSeparateur(255, 0, 255);
constexpr QColor kSurlignay(0, 0, 255);
constexpr QColor kSombre(40, 40, 40);
constexpr QSize kTaille(160, 34);

std::unique_ptr<QStyle> DonneStyle(QString const & nom)
{
    if (nom == "DStyleProxy"_L1)
        return std::make_unique<DStyleProxy>(QStyleFactory::create(u"Fusion"_s));
    return std::unique_ptr<QStyle>(QStyleFactory::create(nom));
}

QPalette PaletteEssai(bool sombre)
{
    QPalette palette(sombre ? kSombre : QColor(240, 240, 240));
    palette.setColor(QPalette::ButtonText, sombre ? Qt::white : Qt::black);
    palette.setColor(QPalette::Highlight, kSurlignay);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

// How far the colours in the part differ from that of its upper left corner.
int Contraste(QImage const & image, QRect const & partie)
{
    int const fond = image.pixelColor(partie.topLeft()).lightness();
    int contraste = 0;
    for (int y = partie.top(); y <= partie.bottom(); ++y)
        for (int x = partie.left(); x <= partie.right(); ++x)
            contraste = std::max(contraste, std::abs(image.pixelColor(x, y).lightness() - fond));
    return contraste;
}

// The states of a button that its style shows.
enum eEtat
{
    kAuRepos,
    kSurvolay,
    kEnfoncay,
    kDesactivay,
    kFocus
};

void MetsEtat(QPushButton & bouton, eEtat etat)
{
    if (etat == kFocus)
        bouton.setFocus();
    else
        bouton.clearFocus(); // before the press, which it would end
    bouton.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    bouton.setAttribute(Qt::WA_UnderMouse, etat == kSurvolay);
    bouton.setDown(etat == kEnfoncay);
    bouton.setEnabled(etat != kDesactivay);
}

} // namespace

class tst_DControleBoutonsExclusifsPeinture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void separateurs();
    void separateurSansCouleur();
    void separateurDeLaPartie();
    void etats_data();
    void etats();
    void marqueDuCochay();
    void marqueFenetreInactive();
    void lisibleCochay_data();
    void lisibleCochay();
    void couleursIntactes();
    void chevronDansLaPartie_data();
    void chevronDansLaPartie();

private:
    DBoutonAvecMenu & Bouton(QVariant const & identifiant) const;

    std::unique_ptr<DControleBoutonsExclusifs> monControle;
};

void tst_DControleBoutonsExclusifsPeinture::init()
{
    ThemesQt::Instance()->AjouterVariable(u"couleurSeparateur"_s, kSeparateur);
    std::vector<DControleBoutonsExclusifs::InfosBouton> const infos{
        {u"a"_s, 1, true, false}, {u"b"_s, 2, false, true}, {u"c"_s, u"trois"_s, false, true}};
    monControle = std::make_unique<DControleBoutonsExclusifs>(infos);
    monControle->setPalette(PaletteEssai(false));
    RenduBoutons::Dispose(*monControle, QSize(400, 40));
}

void tst_DControleBoutonsExclusifsPeinture::cleanup()
{
    monControle.reset();
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

DBoutonAvecMenu & tst_DControleBoutonsExclusifsPeinture::Bouton(QVariant const & identifiant) const
{
    return *qobject_cast<DBoutonAvecMenu *>(monControle->DonneBouton(identifiant));
}

void tst_DControleBoutonsExclusifsPeinture::separateurs()
{
    for (int i : {1, 3}) {
        QWidget & separateur = *monControle->layout()->itemAt(i)->widget();
        QCOMPARE(separateur.width(), 1);
        QCOMPARE(separateur.height(), monControle->height());
        QCOMPARE(Encre::BornesDe(Rendu(separateur), kSeparateur), separateur.rect());
        // The theme does not tell of changes: the next painting shows them.
        ThemesQt::Instance()->AjouterVariable(u"couleurSeparateur"_s, QColor(Qt::green));
        QCOMPARE(Encre::BornesDe(Rendu(separateur), Qt::green), separateur.rect());
        ThemesQt::Instance()->AjouterVariable(u"couleurSeparateur"_s, kSeparateur);
    }
}

void tst_DControleBoutonsExclusifsPeinture::separateurSansCouleur()
{
    ThemesQt::Instance()->AjouterVariable(u"couleurSeparateur"_s, u"aucune"_s);
    QVERIFY(Encre::BornesEncre(Rendu(*monControle->layout()->itemAt(1)->widget())).isNull());
    QImage const image = Rendu(Bouton(2));
    QPoint const position(Bouton(2).DonneRectMenu().left(), image.height() / 2);
    QVERIFY(image.pixelColor(position) != QColor(Qt::black));
}

void tst_DControleBoutonsExclusifsPeinture::separateurDeLaPartie()
{
    auto & bouton = Bouton(2);
    QRect const trait = Encre::BornesDe(Rendu(bouton), kSeparateur);
    QCOMPARE(trait.left(), bouton.DonneRectMenu().left());
    QCOMPARE(trait.width(), 1);
    monControle->AjusterAffichageMenuBoutons(2, false);
    QVERIFY(Encre::BornesDe(Rendu(bouton), kSeparateur).isNull());
}

void tst_DControleBoutonsExclusifsPeinture::etats_data()
{
    QTest::addColumn<QString>("nomStyle");
    QTest::addColumn<eEtat>("etat");
    QTest::addColumn<bool>("avecMenu");
    std::pair<char const *, eEtat> const etats[] = {{"at rest", kAuRepos},
                                                    {"hovered", kSurvolay},
                                                    {"pressed", kEnfoncay},
                                                    {"disabled", kDesactivay},
                                                    {"focus", kFocus}};
    for (char const * const style : {"Fusion", "Windows", "DStyleProxy"}) {
        for (auto const & [nom, etat] : etats) {
            QTest::addRow("%s, %s", style, nom) << QString::fromLatin1(style) << etat << false;
            QTest::addRow("%s, %s, with menu", style, nom)
                << QString::fromLatin1(style) << etat << true;
        }
    }
}

// A plain button beside ours: the same but for the part for the menu, beside which the text is.
void tst_DControleBoutonsExclusifsPeinture::etats()
{
    QFETCH(QString, nomStyle);
    QFETCH(eEtat, etat);
    QFETCH(bool, avecMenu);
    auto const style = DonneStyle(nomStyle);
    QWidget fenetre;
    DBoutonAvecMenu bouton(avecMenu ? QString() : u"abc"_s, avecMenu, &fenetre);
    QPushButton ordinaire(bouton.text(), &fenetre);
    for (QPushButton * const un : {&ordinaire, static_cast<QPushButton *>(&bouton)}) {
        un->setStyle(style.get());
        un->setCheckable(true);
        un->resize(kTaille);
    }
    fenetre.show();
    fenetre.activateWindow();
    QTRY_VERIFY(fenetre.isActiveWindow());
    QRect const partie =
        avecMenu ? bouton.rect().adjusted(0, 0, -bouton.DonneRectMenu().width(), 0) : bouton.rect();
    auto const rendu = [&](QPushButton & un, eEtat sonEtat) {
        MetsEtat(un, sonEtat);
        QImage const image = Rendu(un);
        MetsEtat(un, kAuRepos);
        return image.copy(partie);
    };
    QCOMPARE(rendu(bouton, etat), rendu(ordinaire, etat));
    bool const visible = etat == kEnfoncay || etat == kFocus ||
                         (etat == kDesactivay && !avecMenu) || // by the text
                         (etat == kSurvolay && nomStyle != "Windows"_L1);
    if (visible)
        QVERIFY(rendu(bouton, etat) != rendu(bouton, kAuRepos));
    bouton.setChecked(true); // the mark takes nothing away
    ordinaire.setChecked(true);
    int const hauteurMarque = 5;
    QRect const dessus(0, 0, partie.width(), partie.height() - hauteurMarque);
    QCOMPARE(rendu(bouton, etat).copy(dessus), rendu(ordinaire, etat).copy(dessus));
}

void tst_DControleBoutonsExclusifsPeinture::marqueDuCochay()
{
    auto const style = DonneStyle(u"Fusion"_s);
    auto const marque = [&](QVariant const & identifiant) {
        Bouton(identifiant).setStyle(style.get());
        return Encre::BornesDe(Rendu(Bouton(identifiant)), kSurlignay);
    };
    auto const attendue = [&](QVariant const & identifiant) {
        QSize const taille = Bouton(identifiant).size();
        return QRect(3, taille.height() - 5, taille.width() - 6, 2);
    };
    QCOMPARE(marque(1), attendue(1));
    QVERIFY(marque(2).isNull());
    monControle->MetsCochay(2, true);
    QVERIFY(marque(1).isNull());
    QCOMPARE(marque(2), attendue(2)); // under the part for the menu, too
    Bouton(2).setEnabled(false);
    QVERIFY(marque(2).isNull());
}

// The state has to be told as clearly there.
void tst_DControleBoutonsExclusifsPeinture::marqueFenetreInactive()
{
    QPalette palette = PaletteEssai(false);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::lightGray);
    monControle->setPalette(palette);
    QVERIFY(!monControle->isActiveWindow());
    QVERIFY(!Encre::BornesDe(Rendu(Bouton(1)), kSurlignay).isNull());
}

void tst_DControleBoutonsExclusifsPeinture::lisibleCochay_data()
{
    QTest::addColumn<QString>("nomStyle");
    QTest::addColumn<QString>("feuille");
    QTest::addColumn<bool>("sombre");
    for (char const * const style : {"Fusion", "Windows", "DStyleProxy"}) {
        for (bool const sombre : {false, true}) {
            auto const nom = QString::fromLatin1(style);
            char const * const palette = sombre ? "dark" : "light";
            QTest::addRow("%s, %s", style, palette) << nom << QString() << sombre;
            QTest::addRow("%s, %s, sheet with both colours", style, palette)
                << nom << u"QPushButton { background: white; color: black; }"_s << sombre;
            QTest::addRow("%s, %s, sheet with a background", style, palette)
                << nom
                << u"QPushButton { background: %1; }"_s.arg(sombre ? u"#202020"_s : u"white"_s)
                << sombre;
        }
    }
}

void tst_DControleBoutonsExclusifsPeinture::lisibleCochay()
{
    QFETCH(QString, nomStyle);
    QFETCH(QString, feuille);
    QFETCH(bool, sombre);
    constexpr int kContrasteLisible = 100;
    auto const style = DonneStyle(nomStyle);
    DBoutonAvecMenu bouton(u"MMMM"_s, true);
    bouton.setCheckable(true);
    bouton.setChecked(true);
    bouton.setStyle(style.get());
    bouton.setPalette(PaletteEssai(sombre));
    bouton.setStyleSheet(feuille);
    RenduBoutons::Dispose(bouton, kTaille);

    QImage const image = Rendu(bouton);
    int const milieu = (kTaille.width() - bouton.DonneRectMenu().width()) / 2;
    QRect const texte(milieu - 20, 8, 40, kTaille.height() - 16);
    QVERIFY2(Contraste(image, texte) > kContrasteLisible, "text");
    QRect const partie = bouton.DonneRectMenu().adjusted(2, 8, -4, -8); // beside the separator
    QVERIFY2(Contraste(image, partie) > kContrasteLisible, "chevron");
    QVERIFY2(Encre::BornesDe(image, kSurlignay).width() > kTaille.width() / 2, "mark");
}

// A style sheet's colours for a checked button are seen as they are.
void tst_DControleBoutonsExclusifsPeinture::couleursIntactes()
{
    auto & bouton = Bouton(1);
    bouton.setText({});
    bouton.setPalette(monControle->palette()); // which a button with a sheet does not inherit
    bouton.setStyleSheet(u"QPushButton:checked { background: #00ff00; border: none; }"_s);
    QImage const image = Rendu(bouton);
    QCOMPARE(Encre::BornesDe(image, Qt::green), bouton.rect());
    QCOMPARE(Encre::BornesDe(image, kSurlignay).height(), 2);
}

void tst_DControleBoutonsExclusifsPeinture::chevronDansLaPartie_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

// The text keeps clear of the part.
void tst_DControleBoutonsExclusifsPeinture::chevronDansLaPartie()
{
    QFETCH(Qt::LayoutDirection, sens);
    monControle->setLayoutDirection(sens);
    auto & bouton = Bouton(2);
    QPalette palette = bouton.palette();
    palette.setColor(QPalette::ButtonText, Qt::red);
    bouton.setPalette(palette);
    bouton.setText(u"mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm"_s);
    bouton.resize(100, 30);
    auto const encre = [&] {
        QImage const image = Rendu(bouton).copy(bouton.DonneRectMenu().adjusted(3, 3, -3, -3));
        return Encre::Bornes(image,
                             [](QColor const & pixel) { return pixel.red() > pixel.green() + 60; });
    };
    QRect const chevron = encre();
    QVERIFY(!chevron.isNull());
    bouton.setText({});
    QCOMPARE(encre(), chevron);
}

QTEST_MAIN(tst_DControleBoutonsExclusifsPeinture)
#include "tst_DControleBoutonsExclusifsPeinture.moc"
