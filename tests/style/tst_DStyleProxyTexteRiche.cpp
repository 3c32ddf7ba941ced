// tests/style/tst_DStyleProxyTexteRiche.cpp
#include "style/DStyleProxy.h"

#include "style/CaptureErreurs.h"
#include "style/EssaisTexteRiche.h"

#include <QtTest>

#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

// What a painter is to have again after a drawing, all of it different from a new painter's.
void Deregle(QPainter & peintre)
{
    peintre.setBrush(Qt::yellow);
    peintre.setPen(QPen(Qt::magenta, 3.0));
    peintre.setOpacity(0.75);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.translate(3.0, 4.0);
    peintre.setClipRect(QRect(0, 0, 150, 60));
    QFont font = peintre.font();
    font.setPixelSize(17);
    peintre.setFont(font);
}

void VerifieDeregle(QPainter const & peintre)
{
    QCOMPARE(peintre.brush(), QBrush(Qt::yellow));
    QCOMPARE(peintre.pen(), QPen(Qt::magenta, 3.0));
    QCOMPARE(peintre.opacity(), 0.75);
    QVERIFY(peintre.testRenderHint(QPainter::Antialiasing));
    QCOMPARE(peintre.worldTransform(), QTransform::fromTranslate(3.0, 4.0));
    QCOMPARE(peintre.clipBoundingRect(), QRectF(0, 0, 150, 60));
    QCOMPARE(peintre.font().pixelSize(), 17);
}

} // namespace

class tst_DStyleProxyTexteRiche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void reponse_data();
    void reponse();
    void labelCachay();
    void labelUnique();
    void texteApresLesRegles_data();
    void texteApresLesRegles();
    void alignementCoupay_data();
    void alignementCoupay();
    void paletteSelonLeContexte_data();
    void paletteSelonLeContexte();
    void fondLaissay_data();
    void fondLaissay();
    void couleurDuTexte();
    void fontDuPeintre();
    void actif();
    void tailleDuRectangle();
    void place_data();
    void place();
    void rectangleVide();
    void sensDuWidget_data();
    void sensDuWidget();
    void peintreRendu_data();
    void peintreRendu();
    void exceptionTraverse();
    void exceptionTraverseDrawItemText();
    void itemTextSansWidget();
    void itemTextSimpleCommeLaBase();
    void itemTextDuWidgetDessinay();
    void itemTextDunWidgetDetruit();
    void labelDetruitParUnAutre();

private:
    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyTexteRiche::init()
{
    monStyle = std::make_unique<DStyleProxy>(QStyleFactory::create(u"Fusion"_s));
}

void tst_DStyleProxyTexteRiche::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyTexteRiche::reponse_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("avecWidget"); // which has a rule for <q> when nothing else is said
    QTest::addColumn<int>("contexte");
    QTest::addColumn<bool>("forcay");
    QTest::addColumn<bool>("dessinay");
    QTest::addColumn<bool>("encre");
    auto const ligne = [](char const * nom, QString const & texte, bool avecWidget, int contexte,
                          bool forcay, bool dessinay, bool encre) {
        QTest::newRow(nom) << texte << avecWidget << contexte << forcay << dessinay << encre;
    };
    ligne("base rules", u"<b>x</b>"_s, false, 0, false, true, true);
    ligne("base rules, selected", u"<b>x</b>"_s, false, 1, false, true, true);
    ligne("plain text", u"x"_s, false, 0, false, false, false);
    ligne("plain text, forced", u"x"_s, false, 0, true, true, true);
    ligne("unknown tag", u"<z>x</z>"_s, false, 0, false, false, false);
    ligne("unknown tag, forced", u"<z>x</z>"_s, false, 0, true, true, true);
    ligne("unknown tag that is not closed", u"<z>x"_s, false, 0, false, false, false);
    ligne("entity", u"&lt;"_s, false, 0, false, false, false);
    ligne("empty text", {}, false, 0, false, false, false);
    ligne("empty text, forced", {}, false, 0, true, true, false);
    ligne("rule of the widget", u"<q>x</q>"_s, true, 0, false, true, true);
    ligne("rule of the widget for other contexts", u"<q>x</q>"_s, true, 1, false, false, false);
    ligne("the same, forced", u"<q>x</q>"_s, true, 1, true, true, true);
    ligne("widget without that base rule", u"<b>x</b>"_s, true, 0, false, false, false);
    ligne("widget without that base rule, forced", u"<b>x</b>"_s, true, 0, true, true, true);
    ligne("one tag of two has a rule", u"<b>x</b><q>y</q>"_s, true, 0, false, true, true);
}

void tst_DStyleProxyTexteRiche::reponse()
{
    QFETCH(bool, avecWidget);
    QFETCH(int, contexte);
    QWidget widget;
    MetsRegle(widget, "q");
    DemandeTexteRiche demande;
    QFETCH(QString, texte);
    demande.texte = texte;
    demande.contexte = static_cast<eContextePourStyle>(contexte);
    demande.widget = avecWidget ? &widget : nullptr;
    QFETCH(bool, forcay);
    demande.forcay = forcay;
    QImage image = Toile();
    {
        QPainter peintre(&image);
        QTEST(demande.Dessine(*monStyle, peintre), "dessinay");
    }
    QTEST(!Encre(image).isEmpty(), "encre");
}

void tst_DStyleProxyTexteRiche::labelCachay()
{
    QVERIFY(LabelsRiches().isEmpty()); // only when there is a rich text to draw
    QImage image = Toile();
    QPainter peintre(&image);
    DemandeTexteRiche().Dessine(*monStyle, peintre);
    QLabel const * const label = LabelDeRendu();
    QVERIFY(label);
    QVERIFY(!label->isVisible());
    QVERIFY(!label->parent());
    QVERIFY(!label->windowHandle());
}

void tst_DStyleProxyTexteRiche::labelUnique()
{
    QImage image = Toile();
    QPainter peintre(&image);
    DemandeTexteRiche().Dessine(*monStyle, peintre);
    QPointer<QLabel> const label = LabelDeRendu();
    QWidget widget;
    MetsRegle(widget, "q", kContexteSurvolay);
    DemandeTexteRiche autre;
    autre.texte = u"<q>y</q>"_s;
    autre.contexte = kContexteSurvolay;
    autre.widget = &widget;
    QVERIFY(autre.Dessine(*monStyle, peintre));
    QCOMPARE(LabelsRiches(), QList<QLabel *>{label});

    // Another style has another one.
    {
        DStyleProxy const deuxieme(QStyleFactory::create(u"Fusion"_s));
        DemandeTexteRiche().Dessine(deuxieme, peintre);
        QCOMPARE(LabelsRiches().size(), 2);
    }
    QCOMPARE(LabelsRiches(), QList<QLabel *>{label});
}

void tst_DStyleProxyTexteRiche::texteApresLesRegles_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("avecWidget");
    QTest::addColumn<QString>("resultat");
    QTest::newRow("base rules") << u"<b>x</b><br/>y"_s << false << u"<b>x</b><br>y"_s;
    QTest::newRow("rule of the widget") << u"<q>x</q>y"_s << true << u"[x]y"_s;
    QTest::newRow("no rule") << u"<u>x</u>"_s << true << u"<u>x</u>"_s;
    QTest::newRow("entities") << u"<q>x</q>&amp;"_s << true << u"[x]&"_s;
    QTest::newRow("entities without a rule") << u"a &amp; b"_s << false << u"a & b"_s;
}

void tst_DStyleProxyTexteRiche::texteApresLesRegles()
{
    QFETCH(QString, texte);
    QFETCH(bool, avecWidget);
    QWidget widget;
    MetsRegle(widget, "q");
    DemandeTexteRiche demande;
    demande.texte = texte;
    demande.widget = avecWidget ? &widget : nullptr;
    demande.forcay = true;
    QImage image = Toile();
    QPainter peintre(&image);
    QVERIFY(demande.Dessine(*monStyle, peintre));
    QTEST(LabelDeRendu()->text(), "resultat");
}

void tst_DStyleProxyTexteRiche::alignementCoupay_data()
{
    QTest::addColumn<int>("alignement");
    QTest::addColumn<int>("coupay");
    QTest::newRow("left and middle") << 0x81 << 0x81;
    QTest::newRow("right and bottom") << 0x42 << 0x42;
    QTest::newRow("text flags above it")
        << (0x84 | Qt::TextShowMnemonic | Qt::TextWordWrap) << 0x84;
    QTest::newRow("the ninth bit") << (0x1 | Qt::TextSingleLine | Qt::TextHideMnemonic) << 0x101;
}

void tst_DStyleProxyTexteRiche::alignementCoupay()
{
    DemandeTexteRiche demande;
    QFETCH(int, alignement);
    demande.alignement = alignement;
    QImage image = Toile();
    QPainter peintre(&image);
    QVERIFY(demande.Dessine(*monStyle, peintre));
    QTEST(static_cast<int>(LabelDeRendu()->alignment()), "coupay");
    QVERIFY(!LabelDeRendu()->wordWrap());
}

void tst_DStyleProxyTexteRiche::paletteSelonLeContexte_data()
{
    QTest::addColumn<int>("contexte");
    QTest::addColumn<QColor>("fond");
    QTest::newRow("normal") << 0 << QColor(Qt::red);
    QTest::newRow("selected") << 1 << QColor(Qt::red);
    // Deliberate: no colour at all, and so nothing behind the text.
    QTest::newRow("under the mouse") << 3 << QColor();
    QTest::newRow("selected menu item") << 4 << QColor(Qt::transparent);
}

void tst_DStyleProxyTexteRiche::paletteSelonLeContexte()
{
    QFETCH(int, contexte);
    DemandeTexteRiche demande;
    demande.contexte = static_cast<eContextePourStyle>(contexte);
    demande.palette.setColor(QPalette::Window, Qt::red);
    demande.palette.setColor(QPalette::WindowText, Qt::blue);
    QImage image = Toile();
    QPainter peintre(&image);
    QVERIFY(demande.Dessine(*monStyle, peintre));
    QPalette const palette = LabelDeRendu()->palette();
    for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QTEST(palette.color(groupe, QPalette::Window), "fond");
        QCOMPARE(palette.color(groupe, QPalette::WindowText), QColor(Qt::blue));
    }
    QCOMPARE(demande.palette.color(QPalette::Window), QColor(Qt::red));
}

void tst_DStyleProxyTexteRiche::fondLaissay_data()
{
    QTest::addColumn<int>("contexte");
    for (int const contexte : {0, 1, 3, 4})
        QTest::addRow("context %d", contexte) << contexte;
}

// What the base style has painted under the text stays: a mark, a check, the row itself.
void tst_DStyleProxyTexteRiche::fondLaissay()
{
    QFETCH(int, contexte);
    DemandeTexteRiche demande;
    demande.texte.clear();
    demande.forcay = true;
    demande.contexte = static_cast<eContextePourStyle>(contexte);
    demande.palette.setColor(QPalette::Window, Qt::red);
    QImage image = Toile();
    image.fill(Qt::green);
    QImage const avant = image;
    {
        QPainter peintre(&image);
        QVERIFY(demande.Dessine(*monStyle, peintre));
    }
    QCOMPARE(image, avant);
}

void tst_DStyleProxyTexteRiche::couleurDuTexte()
{
    DemandeTexteRiche demande;
    demande.palette.setColor(QPalette::WindowText, QColor(255, 0, 0));
    QImage image = Toile();
    {
        QPainter peintre(&image);
        QVERIFY(demande.Dessine(*monStyle, peintre));
    }
    int rouge = 0;
    int autres = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QRgb const pixel = image.pixel(x, y);
            rouge = std::max(rouge, qRed(pixel));
            autres = std::max({autres, qGreen(pixel), qBlue(pixel)});
        }
    }
    QCOMPARE_GT(rouge, 0);
    QCOMPARE(autres, 0);
}

void tst_DStyleProxyTexteRiche::fontDuPeintre()
{
    QImage image = Toile();
    QPainter peintre(&image);
    for (int const pixels : {23, 11}) {
        QFont font = peintre.font();
        font.setPixelSize(pixels);
        font.setItalic(pixels == 23);
        peintre.setFont(font);
        QVERIFY(DemandeTexteRiche().Dessine(*monStyle, peintre));
        QCOMPARE(LabelDeRendu()->font().pixelSize(), pixels);
        QCOMPARE(LabelDeRendu()->font().italic(), pixels == 23);
    }
}

void tst_DStyleProxyTexteRiche::actif()
{
    QImage image = Toile();
    QPainter peintre(&image);
    for (bool const voulu : {true, false, true}) {
        DemandeTexteRiche demande;
        demande.actif = voulu;
        QVERIFY(demande.Dessine(*monStyle, peintre));
        QCOMPARE(LabelDeRendu()->isEnabled(), voulu);
    }
}

void tst_DStyleProxyTexteRiche::tailleDuRectangle()
{
    QImage image = Toile();
    QPainter peintre(&image);
    for (QSize const taille : {QSize(120, 40), QSize(20, 10), QSize(180, 70)}) {
        DemandeTexteRiche demande;
        demande.rect.setSize(taille);
        demande.decalage = {7, 3};
        QVERIFY(demande.Dessine(*monStyle, peintre));
        QCOMPARE(LabelDeRendu()->size(), taille);
        QCOMPARE(LabelDeRendu()->minimumSize(), taille);
        QCOMPARE(LabelDeRendu()->maximumSize(), taille);
    }
}

void tst_DStyleProxyTexteRiche::place_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QPoint>("decalage");
    for (double const ratio : {1.0, 1.25, 2.0}) {
        QTest::addRow("not moved, ratio %g", ratio) << ratio << QPoint(0, 0);
        QTest::addRow("moved right, ratio %g", ratio) << ratio << QPoint(32, 0);
        QTest::addRow("moved down, ratio %g", ratio) << ratio << QPoint(0, 8);
        QTest::addRow("moved back, ratio %g", ratio) << ratio << QPoint(-8, -4);
    }
}

// The letters are those that are drawn at the top left corner, at the other place.
void tst_DStyleProxyTexteRiche::place()
{
    QFETCH(double, ratio);
    QFETCH(QPoint, decalage);
    DemandeTexteRiche demande;
    demande.rect = QRect(0, 0, 100, 30);
    QImage origine = Toile(ratio);
    {
        QPainter peintre(&origine);
        QVERIFY(demande.Dessine(*monStyle, peintre));
    }
    QRect const encre = Encre(origine);
    QVERIFY(!encre.isEmpty());
    QVERIFY(QRectF(0, 0, 100 * ratio, 30 * ratio).contains(encre));

    QPoint const coin(12, 8);
    demande.rect.moveTopLeft(coin);
    demande.decalage = decalage;
    QImage image = Toile(ratio);
    {
        QPainter peintre(&image);
        QVERIFY(demande.Dessine(*monStyle, peintre));
    }
    QRect const attendue = encre.translated((QPointF(coin + decalage) * ratio).toPoint());
    QCOMPARE(Encre(image), attendue);
    QCOMPARE(image.copy(attendue), origine.copy(encre));
}

void tst_DStyleProxyTexteRiche::rectangleVide()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QImage image = Toile();
    QPainter peintre(&image);
    for (QRect const & rect : {QRect(), QRect(10, 5, 0, 30), QRect(10, 5, -20, -30)}) {
        DemandeTexteRiche demande;
        demande.rect = rect;
        QVERIFY(demande.Dessine(*monStyle, peintre));
        QVERIFY(Encre(image).isEmpty());
    }
}

void tst_DStyleProxyTexteRiche::sensDuWidget_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("alignement");
    QTest::addColumn<bool>("aGauche");
    auto const ltr = int(Qt::LeftToRight);
    auto const rtl = int(Qt::RightToLeft);
    QString const latin = u"<q>x</q>"_s;
    QString const hebreu = u"<q>\u05D0</q>"_s;
    QTest::newRow("left") << latin << ltr << int(Qt::AlignLeft) << true;
    QTest::newRow("right") << latin << ltr << int(Qt::AlignRight) << false;
    QTest::newRow("left, mirrored") << latin << rtl << int(Qt::AlignLeft) << false;
    QTest::newRow("right, mirrored") << latin << rtl << int(Qt::AlignRight) << true;
    QTest::newRow("left, absolute")
        << latin << rtl << int(Qt::AlignLeft | Qt::AlignAbsolute) << true;
    QTest::newRow("left, mirrored, other letters") << hebreu << rtl << int(Qt::AlignLeft) << false;
}

// Where the widget is mirrored, its layout decides on which side a text begins, and not the
// letters.
void tst_DStyleProxyTexteRiche::sensDuWidget()
{
    QFETCH(QString, texte);
    QFETCH(int, direction);
    QFETCH(int, alignement);
    QWidget widget;
    widget.setLayoutDirection(Qt::LayoutDirection(direction));
    MetsRegle(widget, "q");
    DemandeTexteRiche demande;
    demande.texte = texte;
    demande.alignement = alignement | Qt::AlignVCenter;
    demande.widget = &widget;
    QImage image = Toile();
    {
        QPainter peintre(&image);
        QVERIFY(demande.Dessine(*monStyle, peintre));
    }
    QRect const encre = Encre(image);
    QVERIFY(!encre.isEmpty());
    QTEST(encre.center().x() < demande.rect.center().x(), "aGauche");
}

void tst_DStyleProxyTexteRiche::peintreRendu_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("forcay");
    QTest::newRow("drawn") << u"<b>x</b>"_s << false;
    QTest::newRow("not drawn") << u"x"_s << false;
    QTest::newRow("exception") << u"<b>x"_s << false;
    QTest::newRow("exception, forced") << u"<z>x"_s << true;
}

void tst_DStyleProxyTexteRiche::peintreRendu()
{
    DemandeTexteRiche demande;
    QFETCH(QString, texte);
    demande.texte = texte;
    QFETCH(bool, forcay);
    demande.forcay = forcay;
    demande.decalage = {5, 6};
    QImage image = Toile();
    QPainter peintre(&image);
    Deregle(peintre);
    CaptureErreurs const erreurs;
    try {
        demande.Dessine(*monStyle, peintre);
    } catch (InterpreteurChaineSemantiqueErreur const &) {
    }
    VerifieDeregle(peintre);
}

void tst_DStyleProxyTexteRiche::exceptionTraverse()
{
    QImage image = Toile();
    DemandeTexteRiche demande;
    demande.texte = u"<b>x"_s;
    {
        QPainter peintre(&image);
        CaptureErreurs const erreurs;
        QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur,
                                 demande.Dessine(*monStyle, peintre));
        QCOMPARE(erreurs.Texte(), u"<b>x\n"_s);
    }
    QVERIFY(Encre(image).isEmpty());

    demande.texte = u"<b>x</b>"_s; // the next one is drawn
    QPainter peintre(&image);
    QVERIFY(demande.Dessine(*monStyle, peintre));
    QCOMPARE(LabelDeRendu()->text(), demande.texte);
}

void tst_DStyleProxyTexteRiche::exceptionTraverseDrawItemText()
{
    QImage image = Toile();
    QPainter peintre(&image);
    Deregle(peintre);
    CaptureErreurs const erreurs;
    auto const dessine = [&](QString const & texte) {
        monStyle->drawItemText(&peintre, QRect(0, 0, 100, 30), Qt::AlignLeft, QPalette(), true,
                               texte);
    };
    QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur, dessine(u"<i>x"_s));
    VerifieDeregle(peintre);
    QCOMPARE(erreurs.Texte(), u"<i>x\n"_s);
    dessine(u"<z>x"_s); // no rule for it: plain text, whose tags nobody counts
    QCOMPARE(erreurs.Texte(), u"<i>x\n"_s);
}

void tst_DStyleProxyTexteRiche::itemTextSansWidget()
{
    QImage image = Toile();
    {
        QPainter peintre(&image);
        monStyle->drawItemText(&peintre, QRect(0, 0, 100, 30), Qt::AlignCenter, QPalette(), false,
                               u"<b>x</b><br/>"_s);
    }
    QVERIFY(!Encre(image).isEmpty());
    QVERIFY(LabelDeRendu());
    QCOMPARE(LabelDeRendu()->text(), u"<b>x</b><br>"_s);
    QCOMPARE(LabelDeRendu()->alignment(), Qt::AlignCenter);
    QCOMPARE(LabelDeRendu()->size(), QSize(100, 30));
    QVERIFY(!LabelDeRendu()->isEnabled());
}

void tst_DStyleProxyTexteRiche::itemTextSimpleCommeLaBase()
{
    std::unique_ptr<QStyle> const base(QStyleFactory::create(u"Fusion"_s));
    for (QString const & texte : {u"&Fichier"_s, u"a < b"_s, u"<z>x</z>"_s, u"&lt;"_s}) {
        QImage image = Toile();
        QImage attendue = Toile();
        constexpr int kDrapeaux = Qt::AlignCenter | Qt::TextShowMnemonic;
        for (bool const attendu : {false, true}) {
            QPainter peintre(attendu ? &attendue : &image);
            QStyle const & style = attendu ? *base : *monStyle;
            style.drawItemText(&peintre, QRect(0, 0, 100, 30), kDrapeaux, QPalette(), true, texte);
        }
        QCOMPARE(image, attendue);
    }
}

void tst_DStyleProxyTexteRiche::itemTextDuWidgetDessinay()
{
    QWidget widget;
    MetsRegle(widget, "q");
    QImage image = Toile();
    QPainter peintre(&image);
    QStyleOption option;
    monStyle->drawControl(QStyle::CE_SizeGrip, &option, &peintre, &widget);
    auto const dessine = [&] {
        monStyle->drawItemText(&peintre, QRect(0, 0, 100, 30), Qt::AlignLeft, QPalette(), true,
                               u"<q>x</q><b>y</b>"_s);
        return LabelDeRendu() ? LabelDeRendu()->text() : QString();
    };
    QCOMPARE(dessine(), u"[x]<b>y</b>"_s);

    monStyle->drawControl(QStyle::CE_SizeGrip, &option, &peintre, nullptr);
    QCOMPARE(dessine(), u"<q>x</q><b>y</b>"_s);
}

void tst_DStyleProxyTexteRiche::itemTextDunWidgetDetruit()
{
    QImage image = Toile();
    {
        QPainter peintre(&image);
        QStyleOption option;
        auto widget = std::make_unique<QWidget>();
        MetsRegle(*widget, "q");
        monStyle->drawControl(QStyle::CE_SizeGrip, &option, &peintre, widget.get());
        widget.reset();
        image.fill(Qt::transparent);
        monStyle->drawItemText(&peintre, QRect(0, 0, 100, 30), Qt::AlignLeft, QPalette(), true,
                               u"<q>x</q>"_s);
        monStyle->drawItemPixmap(&peintre, QRect(0, 0, 10, 10), Qt::AlignLeft, QPixmap(10, 10));
    }
    QVERIFY(!Encre(image).isEmpty());
    QVERIFY(!LabelDeRendu()); // its rules went with it, and the base rules have no <q>
}

void tst_DStyleProxyTexteRiche::labelDetruitParUnAutre()
{
    QImage image = Toile();
    QPainter peintre(&image);
    QVERIFY(DemandeTexteRiche().Dessine(*monStyle, peintre));
    for (QWidget * const widget : QApplication::topLevelWidgets())
        delete widget; // as an application does that closes all it finds
    QVERIFY(DemandeTexteRiche().Dessine(*monStyle, peintre));
    QVERIFY(LabelDeRendu());
    QCOMPARE(LabelDeRendu()->text(), u"<b>x</b>"_s);
}

QTEST_MAIN(tst_DStyleProxyTexteRiche)
#include "tst_DStyleProxyTexteRiche.moc"
