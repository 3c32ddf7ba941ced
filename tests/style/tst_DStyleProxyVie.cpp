// tests/style/tst_DStyleProxyVie.cpp
#include "style/DStyleProxy.h"

#include "editing/DLineEdit.h"
#include "foundation/ThemesQt.h"
#include "style/EssaisTexteRiche.h"

#include <QtTest>

#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr char kStyleDEssai[] = "Fusion";

QString NomCouleurSurvol()
{
    return u"couleurBoutonDStyleProxyMouseOver"_s;
}

QStyle * CreeBase()
{
    return QStyleFactory::create(QLatin1StringView(kStyleDEssai));
}

QColor CouleurErreur()
{
    return ThemesQt::Instance()->DonneCouleur(u"couleurErreurLineEdit"_s);
}

QColor CouleurDuTexte(QWidget const & widget)
{
    return widget.palette().color(QPalette::Text);
}

// Counts how often a widget is polished, and how deep.
class StylePolisseur : public DStyleProxy
{
public:
    StylePolisseur()
        : DStyleProxy(CreeBase())
    {
    }

    using DStyleProxy::polish;
    void polish(QWidget * widget) override
    {
        ++compte[widget];
        profondeurMax = std::max(profondeurMax, ++maProfondeur[widget]);
        DStyleProxy::polish(widget);
        --maProfondeur[widget];
    }

    QHash<QWidget *, int> compte;
    int profondeurMax = 0;

private:
    QHash<QWidget *, int> maProfondeur;
};

// Makes use of both hidden labels.
void MesureEtDessine(DStyleProxy const & style)
{
    QWidget widget;
    MetsRegle(widget, "q");
    widget.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    QStyleOptionMenuItem option;
    option.text = u"<q>x</q>"_s;
    style.sizeFromContents(QStyle::CT_MenuItem, &option, QSize(100, 20), &widget);
    QImage image = Toile();
    QPainter peintre(&image);
    QVERIFY(DemandeTexteRiche().Dessine(style, peintre));
}

} // namespace

class tst_DStyleProxyVie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ajouteLaCouleurDeSurvol();
    void couleurDeSurvolDeLApplication();
    void detruitSesLabels();
    void labelsDetruitsAvantLui();
    void baseParDefaut();
    void installayDeNouveau();
    void lesWidgetsSurvivent();
    void sansObjetDApplicationNiTheme();
    void champEnErreurPolitDeNouveau();
    void champSansErreurPoli();
    void autreWidgetPoli();
    void feuilleDeLApplication_data();
    void feuilleDeLApplication();
    void selecteur_data();
    void selecteur();
    void selecteurSansContour();
};

void tst_DStyleProxyVie::cleanup()
{
    qApp->setStyleSheet({});
    QApplication::setStyle(CreeBase());
    QApplication::setPalette(QPalette());
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyVie::ajouteLaCouleurDeSurvol()
{
    QVERIFY(!ThemesQt::Instance()->DonneNoms().contains(NomCouleurSurvol()));
    {
        DStyleProxy const style(CreeBase());
        QCOMPARE(style.DonneCouleurBoutonMouseOver(), QColor(0xE5, 0xF1, 0xFB));
    }
    // It is the table's, and stays in it.
    QCOMPARE(ThemesQt::Instance()->DonneCouleur(NomCouleurSurvol()), QColor(0xE5, 0xF1, 0xFB));
}

void tst_DStyleProxyVie::couleurDeSurvolDeLApplication()
{
    ThemesQt::Instance()->AjouterVariable(NomCouleurSurvol(), QColor(1, 2, 3));
    DStyleProxy const style(CreeBase());
    QCOMPARE(style.DonneCouleurBoutonMouseOver(), QColor(0xE5, 0xF1, 0xFB));
    ThemesQt::Instance()->AjouterVariable(NomCouleurSurvol(), QColor(1, 2, 3));
    QCOMPARE(style.DonneCouleurBoutonMouseOver(), QColor(1, 2, 3));
    ThemesQt::DetruisToi();
    QVERIFY(!style.DonneCouleurBoutonMouseOver().isValid());
}

void tst_DStyleProxyVie::detruitSesLabels()
{
    QWidget const autre;
    {
        DStyleProxy const style(CreeBase());
        MesureEtDessine(style);
        QCOMPARE(LabelsRiches().size(), 2);
    }
    QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{const_cast<QWidget *>(&autre)});
}

void tst_DStyleProxyVie::labelsDetruitsAvantLui()
{
    DStyleProxy const style(CreeBase());
    for (int tour = 0; tour < 2; ++tour) {
        MesureEtDessine(style);
        QCOMPARE(LabelsRiches().size(), 2);
        qDeleteAll(LabelsRiches());
    }
}

void tst_DStyleProxyVie::baseParDefaut()
{
    DStyleProxy const style(nullptr);
    QVERIFY(style.baseStyle());
    MesureEtDessine(style);
}

void tst_DStyleProxyVie::installayDeNouveau()
{
    QPointer<DStyleProxy> const premier = new DStyleProxy(CreeBase());
    QApplication::setStyle(premier);
    QLabel widget(u"x"_s);
    MesureEtDessine(*premier);
    widget.grab();

    auto * const deuxieme = new DStyleProxy(CreeBase());
    QApplication::setStyle(deuxieme);
    QVERIFY(!premier);
    QVERIFY(LabelsRiches().isEmpty());
    MesureEtDessine(*deuxieme);
    widget.grab();
    QCOMPARE(LabelsRiches().size(), 2);
    QCOMPARE(widget.style(), deuxieme);

    QApplication::setStyle(deuxieme); // once more the same
    MesureEtDessine(*deuxieme);
    QCOMPARE(LabelsRiches().size(), 2);
}

void tst_DStyleProxyVie::lesWidgetsSurvivent()
{
    QPushButton bouton(u"<q>x</q>"_s);
    MetsRegle(bouton, "q");
    {
        DStyleProxy style(CreeBase());
        bouton.setStyle(&style);
        QVERIFY(!bouton.grab().isNull());
        QVERIFY(LabelDeRendu());
        bouton.setStyle(nullptr);
    }
    QVERIFY(!bouton.grab().isNull());
    QVERIFY(!LabelDeRendu());
}

// An application's last steps: the table goes before the style does.
void tst_DStyleProxyVie::sansObjetDApplicationNiTheme()
{
    auto style = std::make_unique<DStyleProxy>(CreeBase());
    MesureEtDessine(*style);
    ThemesQt::DetruisToi();
    style.reset();
    QVERIFY(!ThemesQt::instanceUnique);
}

void tst_DStyleProxyVie::champEnErreurPolitDeNouveau()
{
    DStyleProxy style(CreeBase());
    DLineEdit champ;
    champ.setStyle(&style);
    champ.MetsErreur(true);
    QCOMPARE(CouleurDuTexte(champ), CouleurErreur());
    QPalette palette = champ.palette();
    palette.setColor(QPalette::Text, Qt::green);
    champ.setPalette(palette);

    style.polish(&champ);

    QCOMPARE(CouleurDuTexte(champ), CouleurErreur());
    champ.setStyle(nullptr);
}

void tst_DStyleProxyVie::champSansErreurPoli()
{
    DStyleProxy style(CreeBase());
    DLineEdit champ;
    champ.setStyle(&style);
    QColor const normale = CouleurDuTexte(champ);
    champ.MetsErreur(true);
    champ.MetsErreur(false);
    style.polish(&champ);
    QCOMPARE(CouleurDuTexte(champ), normale);
    champ.setStyle(nullptr);
}

// The base polishes, and nothing else happens.
void tst_DStyleProxyVie::autreWidgetPoli()
{
    DStyleProxy style(CreeBase());
    QPushButton bouton;
    QLineEdit champ;
    bouton.setAttribute(Qt::WA_Hover, false);
    QPalette palette = champ.palette();
    palette.setColor(QPalette::Text, Qt::green);
    champ.setPalette(palette);

    style.polish(&bouton);
    style.polish(&champ);

    QVERIFY(bouton.testAttribute(Qt::WA_Hover)); // what Fusion wants for buttons
    QCOMPARE(champ.palette(), palette);
}

void tst_DStyleProxyVie::feuilleDeLApplication_data()
{
    QTest::addColumn<bool>("erreur");
    QTest::newRow("field in error") << true;
    QTest::newRow("field without an error") << false;
}

// Polishing gives the field a palette, whose change lets a style sheet polish again.
void tst_DStyleProxyVie::feuilleDeLApplication()
{
    QFETCH(bool, erreur);
    constexpr int kPolissagesMax = 4; // for one change; a recursion would know no end
    auto * const style = new StylePolisseur;
    QApplication::setStyle(style);
    DLineEdit champ;
    champ.MetsErreur(erreur);
    champ.show();
    auto const change = [&](auto const & changement) {
        style->compte.clear();
        changement();
        QCoreApplication::processEvents();
        return style->compte.value(&champ);
    };

    QCOMPARE_LE(change([] { qApp->setStyleSheet(u"QLineEdit { color: blue; }"_s); }),
                kPolissagesMax);
    QPalette sombre;
    sombre.setColor(QPalette::Base, Qt::black);
    sombre.setColor(QPalette::Text, Qt::white);
    QCOMPARE_LE(change([&] { QApplication::setPalette(sombre); }), kPolissagesMax);
    QCOMPARE_LE(change([&] { champ.setPalette(sombre); }), kPolissagesMax);
    QCOMPARE_LE(change([&] { champ.MetsErreur(!erreur); }), kPolissagesMax);
    QCOMPARE_LE(change([] { qApp->setStyleSheet({}); }), kPolissagesMax);
    QCOMPARE(style->profondeurMax, 1);
}

void tst_DStyleProxyVie::selecteur_data()
{
    QTest::addColumn<QRect>("ligne");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QRect>("marque");
    auto const gaucheADroite = int(Qt::LeftToRight);
    QRect const ligne(10, 20, 100, 30);
    QTest::newRow("at the left edge") << ligne << gaucheADroite << QRect(10, 22, 2, 26);
    QTest::newRow("at the right edge") << ligne << int(Qt::RightToLeft) << QRect(108, 22, 2, 26);
    QTest::newRow("low row") << QRect(10, 20, 100, 5) << gaucheADroite << QRect(10, 22, 2, 1);
    QTest::newRow("no room") << QRect(10, 20, 100, 4) << gaucheADroite << QRect();
    QTest::newRow("row that is lower than its margins")
        << QRect(10, 20, 100, 2) << gaucheADroite << QRect();
    QTest::newRow("empty row") << QRect() << gaucheADroite << QRect();
}

void tst_DStyleProxyVie::selecteur()
{
    QFETCH(QRect, ligne);
    QFETCH(int, direction);
    QFETCH(QRect, marque);
    QStyleOptionViewItem option;
    option.rect = ligne;
    option.direction = Qt::LayoutDirection(direction);
    option.palette.setCurrentColorGroup(QPalette::Inactive);
    QWidget const widget;
    for (QWidget const * const de : {&widget, static_cast<QWidget const *>(nullptr)}) {
        QImage image = Toile();
        {
            QPainter peintre(&image);
            DStyleProxy::DessineSelecteurAccentListe(&peintre, option, de, QColor(10, 20, 30));
        }
        QCOMPARE(Encre(image), marque);
        if (!marque.isEmpty()) {
            QImage attendue(marque.size(), image.format());
            attendue.fill(QColor(10, 20, 30));
            QCOMPARE(image.copy(marque), attendue);
        }
    }
}

void tst_DStyleProxyVie::selecteurSansContour()
{
    QStyleOptionViewItem option;
    option.rect = QRect(10, 20, 100, 30);
    QImage image = Toile();
    QPainter peintre(&image);
    QPen const contour(Qt::red, 5.0);
    peintre.setPen(contour);
    peintre.setBrush(Qt::green);
    DStyleProxy::DessineSelecteurAccentListe(&peintre, option, nullptr, QColor(10, 20, 30));
    QCOMPARE(peintre.pen(), contour);
    QCOMPARE(peintre.brush(), QBrush(Qt::green));
    peintre.end();
    QCOMPARE(Encre(image), QRect(10, 22, 2, 26));
    QCOMPARE(image.pixelColor(10, 22), QColor(10, 20, 30));
}

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    QApplication::setStyle(CreeBase()); // whatever the desktop has
    tst_DStyleProxyVie test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_DStyleProxyVie.moc"
