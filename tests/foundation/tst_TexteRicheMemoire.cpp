// tests/foundation/tst_TexteRicheMemoire.cpp
//
// Rows that were drawn before are drawn from memory. Whatever changes, nobody may see it: each
// image is compared with one that is drawn without the library's memory.
#include "foundation/ImagesTexteRiche.h"
#include "foundation/PoliceDEssaiTexteRiche.h"
#include "foundation/Polices.h"
#include "foundation/ReferenceTexteRiche.h"

#include <QtTest>

#include <QFontDatabase>
#include <QPicture>

#include <memory>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

struct Dessin
{
    QString texte = u"<pn>Les</pn> <s>chats</s> <em>dorment</em> souvent sur le tapis"_s;
    QString source = u"Hugo"_s;
    QRect rectangle = {4, 3, 200, 70};
    bool deuxLignes = false;
    QFont font = DonneFontDImage();
    QPen crayon = QPen(Qt::black);
};

QImage DessineParMemoire(Dessin const & dessin)
{
    return DessineImage([&](QPainter & peintre) {
        peintre.setPen(dessin.crayon);
        DessineTexteRicheAvecSource(peintre, dessin.rectangle, dessin.font, dessin.texte,
                                    dessin.source, dessin.deuxLignes);
    });
}

QImage DessineSansMemoire(Dessin const & dessin)
{
    return DessineImage([&](QPainter & peintre) {
        peintre.setPen(dessin.crayon);
        DessineReference(peintre, dessin.rectangle, dessin.font,
                         {dessin.texte, dessin.source, dessin.deuxLignes});
    });
}

using Changement = void (*)(Dessin &);

} // namespace

class tst_TexteRicheMemoire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void secondeFois_data();
    void secondeFois();
    void changement_data();
    void changement();
    void partageDuTexteEtDeLaSource();
    void modulateur();
    void modulateurACalculer();
    void aucunModulateurSansTailles();
    void resolutionDuPeripherique();
    void imageApresDessinEnregistray();
    void policesAjoutees();
    void beaucoupDAutres();
    void beaucoupDePolices();
    void texteEnorme();
};

void tst_TexteRicheMemoire::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheMemoire::secondeFois_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("deuxLignes");
    QTest::newRow("one line, cut") << Dessin().texte << false;
    QTest::newRow("two lines") << Dessin().texte << true;
    QTest::newRow("index") << u"a<sup>2</sup><sub>3</sub>"_s << false;
    QTest::newRow("index and highlight")
        << u"<span class=\"surlignement\">a</span><sup>2</sup>"_s << false;
    QTest::newRow("colour") << u"<font color =\"#ff0000\">a</font>b"_s << false;
}

void tst_TexteRicheMemoire::secondeFois()
{
    Dessin dessin;
    QFETCH(QString, texte);
    QFETCH(bool, deuxLignes);
    dessin.texte = texte;
    dessin.deuxLignes = deuxLignes;
    QImage const attendue = DessineSansMemoire(dessin);
    for (int fois = 0; fois < 3; ++fois)
        QCOMPARE(DessineParMemoire(dessin), attendue);
}

void tst_TexteRicheMemoire::changement_data()
{
    QTest::addColumn<Changement>("change");
    struct
    {
        char const * nom;
        Changement change;
    } const changements[] = {
        {"text", [](Dessin & d) { d.texte.prepend(u'!'); }},
        {"tags", [](Dessin & d) { d.texte.replace(u"<s>"_s, u"<b>"_s); }},
        {"source", [](Dessin & d) { d.source = u"Zola"_s; }},
        {"no source", [](Dessin & d) { d.source.clear(); }},
        {"width", [](Dessin & d) { d.rectangle.setWidth(173); }},
        {"place", [](Dessin & d) { d.rectangle.translate(20, 7); }},
        {"two lines", [](Dessin & d) { d.deuxLignes = true; }},
        {"pen", [](Dessin & d) { d.crayon = QPen(Qt::red); }},
        {"size", [](Dessin & d) { d.font.setPixelSize(17); }},
        {"size in points", [](Dessin & d) { d.font.setPointSizeF(9.5); }},
        {"weight", [](Dessin & d) { d.font.setBold(true); }},
        {"slant", [](Dessin & d) { d.font.setItalic(true); }},
        {"underline", [](Dessin & d) { d.font.setUnderline(true); }},
        {"letter spacing",
         [](Dessin & d) { d.font.setLetterSpacing(QFont::AbsoluteSpacing, 2.0); }},
        {"capitals", [](Dessin & d) { d.font.setCapitalization(QFont::AllUppercase); }},
        {"family", [](Dessin & d) { d.font.setFamily(u"monospace"_s); }},
    };
    for (auto const & ligne : changements)
        QTest::newRow(ligne.nom) << ligne.change;
}

void tst_TexteRicheMemoire::changement()
{
    QFETCH(Changement, change);
    Dessin const avant;
    Dessin apres = avant;
    change(apres);
    for (int fois = 0; fois < 2; ++fois) {
        QCOMPARE(DessineParMemoire(avant), DessineSansMemoire(avant));
        QCOMPARE(DessineParMemoire(apres), DessineSansMemoire(apres));
    }
    QVERIFY(DessineParMemoire(avant) != DessineParMemoire(apres));
}

void tst_TexteRicheMemoire::partageDuTexteEtDeLaSource()
{
    Dessin un;
    un.texte = u"ab"_s;
    un.source = u"c"_s;
    Dessin deux;
    deux.texte = u"a"_s;
    deux.source = u"bc"_s;
    QCOMPARE(DessineParMemoire(un), DessineSansMemoire(un));
    QCOMPARE(DessineParMemoire(deux), DessineSansMemoire(deux));
}

void tst_TexteRicheMemoire::modulateur()
{
    Dessin const dessin;
    QImage const avant = DessineParMemoire(dessin);
    ModulateurFont::Instance()->PrendsModulateur(1.5);
    QImage const pendant = DessineParMemoire(dessin);
    QCOMPARE(pendant, DessineSansMemoire(dessin));
    QVERIFY(pendant != avant);
    ModulateurFont::LibereInstance();
    QCOMPARE(DessineParMemoire(dessin), avant);
}

void tst_TexteRicheMemoire::modulateurACalculer()
{
    Dessin const dessin;
    ModulateurFont::Instance()->PrendsModulateur(3.0);
    DessineParMemoire(dessin);
    ModulateurFont::Instance()->PrendsModulateur(-1.0);
    QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(),
             ModulateurFont::DonneModulateurCalculee());
}

void tst_TexteRicheMemoire::aucunModulateurSansTailles()
{
    Dessin dessin;
    dessin.texte = u"un <b>chat</b>"_s;
    DessineParMemoire(dessin);
    QVERIFY(!ModulateurFont::singletonModulateur);
}

// Fonts of two devices are equal, and yet of two sizes.
void tst_TexteRicheMemoire::resolutionDuPeripherique()
{
    QImage imprimante(10, 10, QImage::Format_ARGB32_Premultiplied);
    imprimante.setDotsPerMeterX(12000);
    imprimante.setDotsPerMeterY(12000);
    for (bool const enPoints : {true, false}) {
        Dessin ecran;
        if (enPoints)
            ecran.font.setPointSizeF(9.0);
        Dessin papier = ecran;
        papier.font = QFont(ecran.font, &imprimante);
        QCOMPARE(papier.font, ecran.font);
        for (int fois = 0; fois < 2; ++fois) {
            QCOMPARE(DessineParMemoire(ecran), DessineSansMemoire(ecran));
            QVERIFY(DessineParMemoire(papier) != DessineParMemoire(ecran));
        }
        // Without sizes of its own the text is what a bare layout makes of the font.
        for (Dessin * const dessin : {&ecran, &papier}) {
            dessin->texte = u"abc"_s;
            dessin->source.clear();
        }
        for (Dessin const & dessin : {ecran, papier, ecran, papier})
            QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
        QCOMPARE(DessineParMemoire(papier) == DessineParMemoire(ecran), !enPoints);
    }
}

// A picture takes letters and an image glyphs, of the same row.
void tst_TexteRicheMemoire::imageApresDessinEnregistray()
{
    Dessin dessin;
    dessin.texte += u"<sup>2</sup>"_s;
    for (int fois = 0; fois < 2; ++fois) {
        QPicture enregistray;
        {
            QPainter peintre(&enregistray);
            DessineTexteRicheAvecSource(peintre, dessin.rectangle, dessin.font, dessin.texte,
                                        dessin.source, dessin.deuxLignes);
        }
        QVERIFY(QByteArrayView(enregistray.data(), enregistray.size())
                    .contains(QByteArray("\0L\0e\0s", 6)));
        QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
    }
}

void tst_TexteRicheMemoire::policesAjoutees()
{
    Dessin dessin;
    dessin.texte = u"abc"_s;
    dessin.font.setFamily(DonneFamilleDEssai());
    QImage const avant = DessineParMemoire(dessin);
    QCOMPARE(avant, DessineSansMemoire(dessin));

    int const police = QFontDatabase::addApplicationFontFromData(DonnePoliceDEssai());
    QVERIFY(police >= 0);
    QImage const pendant = DessineParMemoire(dessin);
    QVERIFY(pendant != avant);
    QCOMPARE(pendant, DessineSansMemoire(dessin));

    QVERIFY(QFontDatabase::removeApplicationFont(police));
    QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
}

void tst_TexteRicheMemoire::beaucoupDAutres()
{
    Dessin dessin;
    QImage const avant = DessineParMemoire(dessin);
    DessineImage([&](QPainter & peintre) {
        for (int i = 0; i < 3'000; ++i) // more than are kept
            DessineTexteRiche(peintre, dessin.rectangle, dessin.font, u"<b>rang</b> %1"_s.arg(i));
    });
    QCOMPARE(DessineParMemoire(dessin), avant);
    QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
}

void tst_TexteRicheMemoire::beaucoupDePolices()
{
    Dessin dessin;
    QImage const avant = DessineParMemoire(dessin);
    for (int taille = 5; taille < 105; ++taille) {
        QFont font(dessin.font);
        font.setPixelSize(taille);
        QVERIFY(DonneLongueurTexteRiche(dessin.texte, font) > 0.0);
    }
    QCOMPARE(DessineParMemoire(dessin), avant);
}

// That it is drawn right. That its time grows with its length is for the benchmark to see.
void tst_TexteRicheMemoire::texteEnorme()
{
    Dessin dessin;
    dessin.texte = dessin.texte.repeated(2'000); // more than all that is kept
    QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
    QCOMPARE(DessineParMemoire(dessin), DessineSansMemoire(dessin));
}

QTEST_MAIN(tst_TexteRicheMemoire)
#include "tst_TexteRicheMemoire.moc"
