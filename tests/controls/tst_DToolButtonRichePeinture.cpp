// tests/controls/tst_DToolButtonRichePeinture.cpp
#include "controls/DToolButtonRiche.h"

#include "controls/RenduBoutons.h"
#include "style/StyleEspion.h"

#include <QStyleFactory>
#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;
using RenduBoutons::Rendu;

namespace {

constexpr QColor kFond(255, 0, 0);

// A box in one colour, whatever the fonts.
QString const & Boite()
{
    static QString const html =
        u"<span style=\"background-color:#ff0000; color:#ff0000; font-size:20px\">MMM</span>"_s;
    return html;
}

bool EstBleu(QColor const & couleur)
{
    return couleur.blue() > couleur.red() + 60;
}

bool EstVert(QColor const & couleur)
{
    return couleur.green() > couleur.red() + 60 && couleur.green() > couleur.blue() + 60;
}

bool EstVide(QRect const & rect)
{
    return rect.isNull();
}

} // namespace

class tst_DToolButtonRichePeinture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void centray_data();
    void centray();
    void tropGrand_data();
    void tropGrand();
    void texteDeLaBaseCachay();
    void styleRecoitLeTexteBrut();
    void couleurDuTexte_data();
    void couleurDuTexte();
    void couleurHeritee();
    void couleurDesactivee();
    void sansTexteDesactivay_data();
    void sansTexteDesactivay();
    void htmlVide();
    void imageDuHtml();
    void iconeSousLeHtml();
    void retourAuTexte();

private:
    std::unique_ptr<QStyle> monStyle;
};

void tst_DToolButtonRichePeinture::init()
{
    monStyle.reset(QStyleFactory::create(u"Fusion"_s));
}

void tst_DToolButtonRichePeinture::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToolButtonRichePeinture::centray_data()
{
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("wide") << QSize(400, 60) << Qt::LeftToRight;
    QTest::newRow("high") << QSize(120, 300) << Qt::LeftToRight;
    QTest::newRow("right to left") << QSize(400, 60) << Qt::RightToLeft;
}

void tst_DToolButtonRichePeinture::centray()
{
    QFETCH(QSize, taille);
    QFETCH(Qt::LayoutDirection, sens);
    DToolButtonRiche bouton;
    bouton.setLayoutDirection(sens);
    bouton.setHtml(Boite());
    bouton.resize(taille);
    QRect const boite = Encre::BornesDe(Rendu(bouton), kFond);
    QVERIFY(!EstVide(boite));
    QVERIFY(boite.width() < taille.width() - 40);
    QVERIFY(std::abs(boite.left() - (taille.width() - 1 - boite.right())) <= 2);
    QVERIFY(std::abs(boite.top() - (taille.height() - 1 - boite.bottom())) <= 2);
}

void tst_DToolButtonRichePeinture::tropGrand_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("too large") << Boite();
    QTest::newRow("very long") << Boite().repeated(500);
}

// The middle is seen.
void tst_DToolButtonRichePeinture::tropGrand()
{
    QFETCH(QString, html);
    DToolButtonRiche bouton;
    bouton.setHtml(html);
    bouton.resize(20, 10);
    QCOMPARE(Encre::BornesDe(Rendu(bouton), kFond), bouton.rect());
}

// Neither the palette nor a style sheet brings it back.
void tst_DToolButtonRichePeinture::texteDeLaBaseCachay()
{
    DToolButtonRiche bouton;
    bouton.setPalette(Qt::white);
    bouton.setStyleSheet(u"QToolButton { color: #00ff00; border: none; }"_s);
    bouton.setHtml(u"<span style=\"color:#ff0000; font-size:3px\">MMM</span>"_s); // covers little
    bouton.resize(200, 60);
    QImage const image = Rendu(bouton);
    QVERIFY(EstVide(Encre::Bornes(image, EstVert)));
    bouton.setText(u"MMM"_s);
    QVERIFY(!EstVide(Encre::Bornes(Rendu(bouton), EstVert)));
}

void tst_DToolButtonRichePeinture::styleRecoitLeTexteBrut()
{
    StyleEspion style;
    DToolButtonRiche bouton;
    bouton.setStyle(&style);
    bouton.setHtml(u"<b>Riche</b> et &amp;co"_s);
    style.appels.clear();
    bouton.grab();

    auto const appels = style.Donne(AppelStyle::kComplexe, QStyle::CC_ToolButton);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().texte, u"Riche et &co"_s);
    QCOMPARE(appels.first().palette.color(QPalette::ButtonText), QColor(Qt::transparent));
}

void tst_DToolButtonRichePeinture::couleurDuTexte_data()
{
    QTest::addColumn<bool>("avant");
    QTest::newRow("set before the HTML") << true;
    QTest::newRow("set while there is HTML") << false;
}

void tst_DToolButtonRichePeinture::couleurDuTexte()
{
    QFETCH(bool, avant);
    QPalette palette(QColor(60, 60, 60), QColor(40, 40, 40));
    palette.setColor(QPalette::ButtonText, Qt::blue);
    DToolButtonRiche bouton;
    bouton.setStyle(monStyle.get());
    if (avant)
        bouton.setPalette(palette);
    bouton.setHtml(u"<b>MMMM</b>"_s);
    if (!avant)
        bouton.setPalette(palette);
    bouton.resize(200, 60);
    QVERIFY(!EstVide(Encre::Bornes(Rendu(bouton), EstBleu)));
}

// The theme of the application changes while there is HTML.
void tst_DToolButtonRichePeinture::couleurHeritee()
{
    QWidget parent;
    DToolButtonRiche bouton(&parent);
    bouton.setStyle(monStyle.get());
    bouton.setHtml(u"<b>MMMM</b>"_s);
    bouton.resize(200, 60);
    QVERIFY(EstVide(Encre::Bornes(Rendu(bouton), EstBleu)));
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::blue);
    parent.setPalette(palette);
    QVERIFY(!EstVide(Encre::Bornes(Rendu(bouton), EstBleu)));
}

void tst_DToolButtonRichePeinture::couleurDesactivee()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::blue);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::green);
    DToolButtonRiche bouton;
    bouton.setStyle(monStyle.get());
    bouton.setPalette(palette);
    bouton.setHtml(u"<b>MMMM</b>"_s);
    bouton.resize(200, 60);
    QVERIFY(EstVide(Encre::Bornes(Rendu(bouton), EstVert)));
    bouton.setEnabled(false);
    QVERIFY(!EstVide(Encre::Bornes(Rendu(bouton), EstVert)));
    QVERIFY(EstVide(Encre::Bornes(Rendu(bouton), EstBleu)));
}

void tst_DToolButtonRichePeinture::sansTexteDesactivay_data()
{
    QTest::addColumn<QString>("nomStyle");
    QTest::newRow("Fusion") << u"Fusion"_s;
    QTest::newRow("Windows, which etches it") << u"Windows"_s;
}

// Nothing is left of the base class's text.
void tst_DToolButtonRichePeinture::sansTexteDesactivay()
{
    QFETCH(QString, nomStyle);
    monStyle.reset(QStyleFactory::create(nomStyle));
    QPalette palette(QColor(200, 200, 200));
    palette.setColor(QPalette::Light, Qt::green);
    QToolButton ordinaire;
    DToolButtonRiche bouton;
    for (QToolButton * const un : {&ordinaire, static_cast<QToolButton *>(&bouton)}) {
        un->setStyle(monStyle.get());
        un->setPalette(palette);
        un->setEnabled(false);
        un->resize(200, 60);
    }
    bouton.setHtml(u"<span style=\"font-size:1px; color:transparent\">MMMM</span>"_s);
    QCOMPARE(Rendu(bouton), Rendu(ordinaire));
}

void tst_DToolButtonRichePeinture::htmlVide()
{
    QToolButton ordinaire;
    ordinaire.setStyle(monStyle.get());
    DToolButtonRiche bouton;
    bouton.setStyle(monStyle.get());
    bouton.setHtml({});
    bouton.resize(80, 30);
    ordinaire.resize(80, 30);
    QCOMPARE(Rendu(bouton), Rendu(ordinaire));
}

void tst_DToolButtonRichePeinture::imageDuHtml()
{
    QTemporaryDir dossier;
    QString const fichier = dossier.filePath(u"image.png"_s);
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(kFond);
    QVERIFY(image.save(fichier));
    DToolButtonRiche bouton;
    bouton.setHtml(u"<img src=\"%1\">"_s.arg(fichier));
    bouton.resize(101, 61);
    QCOMPARE(Encre::BornesDe(Rendu(bouton), kFond).size(), image.size());
    QVERIFY(bouton.sizeHint().width() >= 30);
    QVERIFY(bouton.sizeHint().height() >= 20);
    QCOMPARE(bouton.text(), QString());
}

// Deliberate: the HTML has the whole button, also where there is an icon.
void tst_DToolButtonRichePeinture::iconeSousLeHtml()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::green);
    DToolButtonRiche bouton;
    bouton.setStyle(monStyle.get());
    bouton.setIcon(pixmap);
    bouton.setHtml(u"&nbsp;"_s);
    bouton.resize(100, 60);
    QCOMPARE(Encre::BornesDe(Rendu(bouton), Qt::green).size(), QSize(16, 16));
    bouton.setHtml(Boite());
    QImage const image = Rendu(bouton);
    QRect const boite = Encre::BornesDe(image, kFond);
    QVERIFY(boite.height() > 16);
    QVERIFY(EstVide(Encre::BornesDe(image, Qt::green)));
}

void tst_DToolButtonRichePeinture::retourAuTexte()
{
    QToolButton ordinaire;
    ordinaire.setStyle(monStyle.get());
    ordinaire.setText(u"abc"_s);
    ordinaire.resize(80, 30);
    DToolButtonRiche bouton;
    bouton.setStyle(monStyle.get());
    bouton.setHtml(Boite());
    bouton.setText(u"abc"_s);
    bouton.resize(80, 30);
    QCOMPARE(Rendu(bouton), Rendu(ordinaire));
}

QTEST_MAIN(tst_DToolButtonRichePeinture)
#include "tst_DToolButtonRichePeinture.moc"
