// tests/style/tst_DStyleProxyWidgetDessinay.cpp
#include "style/EssaisPeinture.h"

#include "style/InterpreteurChaineSemantiqueT.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(0, 0, 120, 40);

// The element "r" on red.
QVariant DonneRegles()
{
    EnsembleRegles const regles{
        {UniChaine("r"),
         InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
             u"<span style=\"background-color:#ff0000\">"_s, u"</span>"_s)}};
    return QVariant::fromValue(MapDeRegles{{kContexteNormal, regles},
                                           {kContexteSelectionnay, regles},
                                           {kContexteSurvolay, regles},
                                           {kContexteMenuSelectionnay, regles}});
}

bool ContientRouge(QImage const & image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red))
                return true;
        }
    }
    return false;
}

} // namespace

// Texts and pictures are drawn for the widget of the last control.
class tst_DStyleProxyWidgetDessinay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void texteSansWidget_data();
    void texteSansWidget();
    void texteRiche();
    void texteSansRegle();
    void texteALaBaseTelQuel_data();
    void texteALaBaseTelQuel();
    void widgetRemplace();
    void widgetDetruit();
    void imagePale_data();
    void imagePale();
    void imageValeurs_data();
    void imageValeurs();
    void imageCheckable_data();
    void imageCheckable();
    void imageAutresWidgets();
    void imageTelleQuelle();

private:
    void Retiens(QWidget const * widget) const;
    QImage PeinsTexte(QString const & texte) const;
    double OpaciteImage(double depart = 1.0) const;

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyWidgetDessinay::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyWidgetDessinay::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// Draws some control of the widget.
void tst_DStyleProxyWidgetDessinay::Retiens(QWidget const * widget) const
{
    QStyleOption const option;
    Peins(kRect.size(), [&](QPainter & peintre) {
        monBanc->style.drawControl(QStyle::CE_Splitter, &option, &peintre, widget);
    });
    monBanc->espion->appels.clear();
}

QImage tst_DStyleProxyWidgetDessinay::PeinsTexte(QString const & texte) const
{
    monBanc->espion->appels.clear();
    return Peins(kRect.size(), [&](QPainter & peintre) {
        monBanc->style.drawItemText(&peintre, kRect, Qt::AlignLeft | Qt::TextShowMnemonic,
                                    DonnePaletteEssai(), true, texte, QPalette::WindowText);
    });
}

// That of the painter when the base gets the picture.
double tst_DStyleProxyWidgetDessinay::OpaciteImage(double depart) const
{
    monBanc->espion->appels.clear();
    QPixmap image(4, 4);
    image.fill(Qt::black);
    double rendue = 0.0;
    Peins(kRect.size(), [&](QPainter & peintre) {
        peintre.setOpacity(depart);
        monBanc->style.drawItemPixmap(&peintre, kRect, Qt::AlignCenter, image);
        rendue = peintre.opacity();
    });
    auto const appels = monBanc->espion->Donne(AppelStyle::kPixmap);
    bool const correct = appels.size() == 1 && rendue == depart;
    return correct ? appels.first().opacite : -1.0;
}

void tst_DStyleProxyWidgetDessinay::texteSansWidget_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("riche");
    QTest::newRow("plain") << u"Couper"_s << false;
    QTest::newRow("a tag of the base rules") << u"<b>Couper</b>"_s << true;
    QTest::newRow("another tag") << u"<r>Couper</r>"_s << false;
    QTest::newRow("empty") << u""_s << false;
}

void tst_DStyleProxyWidgetDessinay::texteSansWidget()
{
    QFETCH(QString, texte);
    QFETCH(bool, riche);

    QImage const image = PeinsTexte(texte);

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kTexte).isEmpty(), riche);
    QCOMPARE(EstVide(image), !riche);
}

void tst_DStyleProxyWidgetDessinay::texteRiche()
{
    QWidget widget;
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(), DonneRegles());
    Retiens(&widget);

    QVERIFY(ContientRouge(PeinsTexte(u"<r>Couper</r>"_s)));
    QVERIFY(monBanc->espion->appels.isEmpty());

    QVERIFY(EstVide(PeinsTexte(u"<b>Couper</b>"_s))); // not one of its rules
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kTexte).size(), 1);
}

// A widget without rules has none: the base rules are for no widget.
void tst_DStyleProxyWidgetDessinay::texteSansRegle()
{
    QWidget widget;
    Retiens(&widget);

    QVERIFY(EstVide(PeinsTexte(u"<b>Couper</b>"_s)));
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kTexte).size(), 1);
}

void tst_DStyleProxyWidgetDessinay::texteALaBaseTelQuel_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<bool>("actif");
    QTest::newRow("no role") << QPalette::NoRole << true;
    QTest::newRow("window text") << QPalette::WindowText << true;
    QTest::newRow("button text") << QPalette::ButtonText << true;
    QTest::newRow("button text, disabled") << QPalette::ButtonText << false;
}

// Above all, the text of a button has its own colour.
void tst_DStyleProxyWidgetDessinay::texteALaBaseTelQuel()
{
    QFETCH(QPalette::ColorRole, role);
    QFETCH(bool, actif);
    QWidget widget;
    Retiens(&widget);
    QPalette const palette = DonnePaletteEssai();
    int const drapeaux = Qt::AlignRight | Qt::TextHideMnemonic;

    QImage const image = Peins(kRect.size(), [&](QPainter & peintre) {
        monBanc->style.drawItemText(&peintre, kRect, drapeaux, palette, actif, u"&Ouvrir"_s, role);
    });

    QVERIFY(EstVide(image));
    QCOMPARE(monBanc->espion->appels.size(), 1);
    AppelStyle const appel = monBanc->espion->appels.first();
    QCOMPARE(appel.fonction, AppelStyle::kTexte);
    QCOMPARE(appel.element, int(role));
    QCOMPARE(appel.palette, palette);
    QCOMPARE(appel.drapeaux, drapeaux);
    QCOMPARE(appel.actif, actif);
    QCOMPARE(appel.texte, u"&Ouvrir"_s);
    QCOMPARE(appel.rect, kRect);
}

void tst_DStyleProxyWidgetDessinay::widgetRemplace()
{
    QWidget riche;
    QWidget autre;
    riche.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(), DonneRegles());

    Retiens(&riche);
    QVERIFY(ContientRouge(PeinsTexte(u"<r>A</r>"_s))); // still, after the control
    Retiens(&autre);
    QVERIFY(EstVide(PeinsTexte(u"<r>A</r>"_s)));
    // Also where nothing of the control is drawn.
    riche.setProperty(DStyleProxy::DonneNomAttributStyleChampTexteSansLigneDecoratrice(), true);
    Retiens(&riche);
    QVERIFY(ContientRouge(PeinsTexte(u"<r>A</r>"_s)));
    Retiens(nullptr);
    QVERIFY(EstVide(PeinsTexte(u"<r>A</r>"_s)));
    QVERIFY(!EstVide(PeinsTexte(u"<b>A</b>"_s)));
}

void tst_DStyleProxyWidgetDessinay::widgetDetruit()
{
    auto bouton = std::make_unique<QPushButton>();
    bouton->setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);
    bouton->setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(), DonneRegles());
    Retiens(bouton.get());
    QCOMPARE(OpaciteImage(), 0.35);

    bouton.reset();

    QCOMPARE(OpaciteImage(), 1.0);
    QVERIFY(EstVide(PeinsTexte(u"<r>A</r>"_s)));
    QVERIFY(EstVide(PeinsTexte(u"<b>A</b>"_s))); // nor by the rules for no widget

    Retiens(nullptr);
    QVERIFY(!EstVide(PeinsTexte(u"<b>A</b>"_s))); // those are for no widget, not for one that went
}

void tst_DStyleProxyWidgetDessinay::imagePale_data()
{
    QTest::addColumn<bool>("actif");
    QTest::addColumn<bool>("cochable");
    QTest::addColumn<bool>("propriete");
    QTest::addColumn<double>("opacite");
    QTest::newRow("enabled") << true << false << false << 0.35;
    QTest::newRow("enabled, checkable") << true << true << false << 1.0;
    QTest::newRow("enabled, as if checkable") << true << false << true << 1.0;
    QTest::newRow("enabled, both") << true << true << true << 1.0;
    QTest::newRow("disabled") << false << false << false << 0.35;
    QTest::newRow("disabled, checkable") << false << true << false << 0.35;
    QTest::newRow("disabled, as if checkable") << false << false << true << 0.35;
}

void tst_DStyleProxyWidgetDessinay::imagePale()
{
    QFETCH(bool, actif);
    QFETCH(bool, cochable);
    QFETCH(bool, propriete);
    QFETCH(double, opacite);
    QToolButton bouton;
    bouton.setEnabled(actif);
    bouton.setCheckable(cochable);
    bouton.setProperty(DStyleProxy::DonneNomAttributPourStyleBoutonCheckable(), propriete);
    Retiens(&bouton);
    QCOMPARE(OpaciteImage(), 1.0);

    bouton.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);

    QCOMPARE(OpaciteImage(), opacite);
    QCOMPARE(OpaciteImage(0.5), opacite < 1.0 ? opacite : 0.5);
}

void tst_DStyleProxyWidgetDessinay::imageValeurs_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyWidgetDessinay::imageValeurs()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QPushButton bouton;
    bouton.setProperty(DStyleProxy::DonneNomAttributPourStyle(), valeur);
    Retiens(&bouton);

    QCOMPARE(OpaciteImage(), compte ? 0.35 : 1.0);
}

void tst_DStyleProxyWidgetDessinay::imageCheckable_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyWidgetDessinay::imageCheckable()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QPushButton bouton;
    bouton.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);
    bouton.setProperty(DStyleProxy::DonneNomAttributPourStyleBoutonCheckable(), valeur);
    Retiens(&bouton);

    QCOMPARE(OpaciteImage(), compte ? 1.0 : 0.35);
}

void tst_DStyleProxyWidgetDessinay::imageAutresWidgets()
{
    QLabel label;
    label.setEnabled(false);
    label.setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);
    Retiens(&label);
    QCOMPARE(OpaciteImage(), 1.0);

    Retiens(nullptr);
    QCOMPARE(OpaciteImage(), 1.0);
}

void tst_DStyleProxyWidgetDessinay::imageTelleQuelle()
{
    QPixmap image(6, 3);
    image.fill(Qt::blue);

    QVERIFY(EstVide(Peins(kRect.size(), [&](QPainter & peintre) {
        monBanc->style.drawItemPixmap(&peintre, kRect, Qt::AlignRight, image);
    })));

    QCOMPARE(monBanc->espion->appels.size(), 1);
    AppelStyle const appel = monBanc->espion->appels.first();
    QCOMPARE(appel.rect, kRect);
    QCOMPARE(appel.drapeaux, int(Qt::AlignRight));
    QCOMPARE(appel.image.cacheKey(), image.cacheKey());
}

QTEST_MAIN(tst_DStyleProxyWidgetDessinay)
#include "tst_DStyleProxyWidgetDessinay.moc"
