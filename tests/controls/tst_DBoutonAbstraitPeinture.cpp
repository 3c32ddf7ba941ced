// tests/controls/tst_DBoutonAbstraitPeinture.cpp
#include "controls/EssaisBouton.h"
#include "style/StyleEspion.h"

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

namespace {

/// Shows the hover, which Fusion does not, of whatever can be used or not.
class StyleSurvol : public QProxyStyle
{
public:
    StyleSurvol()
        : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
    {
    }

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget) const override
    {
        if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)
            peintre->fillRect(option->rect, option->state & State_MouseOver ? Qt::red : Qt::blue);
        else
            QProxyStyle::drawPrimitive(element, option, peintre, widget);
    }
};

} // namespace

class tst_DBoutonAbstraitPeinture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void appelAuStyle_data();
    void appelAuStyle();
    void etatsParPixels_data();
    void etatsParPixels();
    void survol_data();
    void survol();
    void survolRedessineLIndicateur_data();
    void survolRedessineLIndicateur();
    void survolDansUneFeuille_data();
    void survolDansUneFeuille();
    void survolDuDesactivay_data();
    void survolDuDesactivay();
    void survolDuGelay();
    void survolDuCachay_data();
    void survolDuCachay();

private:
    DBoutonAbstrait * Ajoute(eGenre genre, bool avecSurvol = true);
    void DeplaceSouris(QPoint const & position);
    QPoint Dedans(QWidget const & widget) const;

    StyleSurvol monStyle;
    std::unique_ptr<QWidget> maFenetre;
};

namespace {

QImage Image(DBoutonAbstrait const & controle)
{
    return Indicateur(controle).grab().toImage();
}

bool EstSurvolay(DBoutonAbstrait const & controle)
{
    QImage const image = Image(controle);
    return image.pixelColor(5, image.height() / 2) == QColor(Qt::red);
}

} // namespace

void tst_DBoutonAbstraitPeinture::init()
{
    maFenetre = std::make_unique<QWidget>();
    maFenetre->resize(400, 300);
    maFenetre->show();
    QVERIFY(QTest::qWaitForWindowExposed(maFenetre.get()));
}

void tst_DBoutonAbstraitPeinture::cleanup()
{
    maFenetre.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// A control in the middle of the window, and the mouse out of it.
DBoutonAbstrait * tst_DBoutonAbstraitPeinture::Ajoute(eGenre genre, bool avecSurvol)
{
    DBoutonAbstrait * const controle = Cree(genre, u"abc <a href='x'>lien</a>"_s, maFenetre.get());
    controle->setGeometry(100, 100, 200, 40);
    if (avecSurvol)
        Indicateur(*controle).setStyle(&monStyle);
    controle->show();
    DeplaceSouris({5, 5});
    return controle;
}

void tst_DBoutonAbstraitPeinture::DeplaceSouris(QPoint const & position)
{
    QTest::mouseMove(maFenetre->windowHandle(), position);
}

QPoint tst_DBoutonAbstraitPeinture::Dedans(QWidget const & widget) const
{
    return widget.mapTo(maFenetre.get(), QPoint(5, widget.height() / 2));
}

void tst_DBoutonAbstraitPeinture::appelAuStyle_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitPeinture::appelAuStyle()
{
    QFETCH(eGenre, genre);
    StyleEspion style;
    DBoutonAbstrait * const controle = Ajoute(genre, false);
    Indicateur(*controle).setStyle(&style);
    auto const element = genre == kCase ? QStyle::CE_CheckBox : QStyle::CE_RadioButton;
    for (bool const survolay : {false, true, false}) {
        DeplaceSouris(survolay ? Dedans(Libelle(*controle)) : QPoint(5, 5));
        style.appels.clear();
        Image(*controle);
        QList<AppelStyle> const appels = style.Donne(AppelStyle::kControle, element);
        QCOMPARE(appels.size(), 1);
        QCOMPARE(appels.first().widget, &Indicateur(*controle));
        QVERIFY(appels.first().indices & QPainter::SmoothPixmapTransform);
        QCOMPARE(appels.first().typeOption, int(QStyleOption::SO_Button));
        QCOMPARE(appels.first().rect, Indicateur(*controle).rect());
        QCOMPARE(appels.first().option.state.testFlag(QStyle::State_MouseOver), survolay);
        QVERIFY(appels.first().option.state & QStyle::State_Off);
    }
    Indicateur(*controle).setStyle(nullptr);
}

void tst_DBoutonAbstraitPeinture::etatsParPixels_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitPeinture::etatsParPixels()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<QStyle> const fusion(QStyleFactory::create(u"Fusion"_s));
    DBoutonAbstrait * const controle = Ajoute(genre, false);
    QAbstractButton & indicateur = Indicateur(*controle);
    indicateur.setStyle(fusion.get());
    QVERIFY(QTest::qWaitForWindowActive(maFenetre.get()));
    indicateur.clearFocus();

    QList<QImage> images{Image(*controle)};
    auto const note = [&] { images << Image(*controle); };
    indicateur.setDown(true);
    note();
    indicateur.setDown(false);
    QCOMPARE(Image(*controle), images.first());
    controle->setEnabled(false);
    note();
    controle->setEnabled(true);
    controle->MetsCochay(true);
    note();
    controle->setEnabled(false);
    note();
    controle->setEnabled(true);
    controle->MetsCochay(false);
    controle->setFocus(Qt::TabFocusReason);
    maFenetre->setAttribute(Qt::WA_KeyboardFocusChange);
    note();
    controle->clearFocus();
    QCOMPARE(Image(*controle), images.first());
    for (int i = 0; i < images.size(); ++i)
        for (int j = 0; j < i; ++j)
            QVERIFY2(images.at(i) != images.at(j), qPrintable(u"%1 = %2"_s.arg(i).arg(j)));
    indicateur.setStyle(nullptr);
}

void tst_DBoutonAbstraitPeinture::survol_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitPeinture::survol()
{
    QFETCH(eGenre, genre);
    DBoutonAbstrait * const controle = Ajoute(genre);
    QVERIFY(!EstSurvolay(*controle));
    QLabel const & libelle = Libelle(*controle);
    QPoint const milieu(0, controle->height() / 2);
    QPoint const endroits[] = {
        Dedans(libelle), Dedans(Indicateur(*controle)),
        controle->mapTo(maFenetre.get(), QPoint(libelle.x() - 2, 0) + milieu), // the gap
        controle->mapTo(maFenetre.get(), QPoint(198, 0) + milieu),             // the stretch
    };
    for (QPoint const & endroit : endroits) {
        DeplaceSouris(endroit);
        QVERIFY(EstSurvolay(*controle));
    }
    DeplaceSouris({5, 5});
    QVERIFY(!EstSurvolay(*controle));
    for (QPoint const & endroit : endroits) {
        DeplaceSouris(endroit);
        QVERIFY(EstSurvolay(*controle));
        DeplaceSouris({5, 5});
        QVERIFY(!EstSurvolay(*controle));
    }
}

void tst_DBoutonAbstraitPeinture::survolRedessineLIndicateur_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitPeinture::survolRedessineLIndicateur()
{
    QFETCH(eGenre, genre);
    StyleEspion style;
    DBoutonAbstrait * const controle = Ajoute(genre, false);
    Indicateur(*controle).setStyle(&style);
    auto const element = genre == kCase ? QStyle::CE_CheckBox : QStyle::CE_RadioButton;
    QTRY_VERIFY(!style.Donne(AppelStyle::kControle, element).isEmpty());
    for (QPoint const & endroit : {Dedans(Libelle(*controle)), QPoint(5, 5)}) {
        style.appels.clear();
        DeplaceSouris(endroit);
        QTRY_VERIFY(!style.Donne(AppelStyle::kControle, element).isEmpty());
    }
    Indicateur(*controle).setStyle(nullptr);
}

void tst_DBoutonAbstraitPeinture::survolDansUneFeuille_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitPeinture::survolDansUneFeuille()
{
    QFETCH(eGenre, genre);
    DBoutonAbstrait * const controle = Ajoute(genre, false);
    Indicateur(*controle).setStyleSheet(
        u"::indicator { width: 12px; height: 12px; background: blue }"
        "::indicator:hover { background: red }"_s);
    QVERIFY(!EstSurvolay(*controle));
    DeplaceSouris(Dedans(Libelle(*controle)));
    QVERIFY(EstSurvolay(*controle));
}

void tst_DBoutonAbstraitPeinture::survolDuDesactivay_data()
{
    AjouteGenres();
}

// Deliberate: the style hears of the mouse over what cannot be used too, and shows it or not.
void tst_DBoutonAbstraitPeinture::survolDuDesactivay()
{
    QFETCH(eGenre, genre);
    DBoutonAbstrait * const controle = Ajoute(genre);
    DeplaceSouris(Dedans(Libelle(*controle)));
    QVERIFY(EstSurvolay(*controle));
    controle->setEnabled(false);
    QVERIFY(EstSurvolay(*controle));
    controle->setEnabled(true);
    QVERIFY(EstSurvolay(*controle));
    controle->setEnabled(false);
    DeplaceSouris({5, 5});
    controle->setEnabled(true);
    QVERIFY(!EstSurvolay(*controle));
}

void tst_DBoutonAbstraitPeinture::survolDuGelay()
{
    auto * const controle = static_cast<DCheckBox *>(Ajoute(kCase));
    controle->MetsUtilisateurPeutChangerValeur(false);
    QVERIFY(!EstSurvolay(*controle));
    DeplaceSouris(Dedans(Libelle(*controle)));
    QVERIFY(EstSurvolay(*controle));
    controle->MetsUtilisateurPeutChangerValeur(true);
    QVERIFY(EstSurvolay(*controle));
}

void tst_DBoutonAbstraitPeinture::survolDuCachay_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitPeinture::survolDuCachay()
{
    QFETCH(eGenre, genre);
    DBoutonAbstrait * const controle = Ajoute(genre);
    DeplaceSouris(Dedans(Libelle(*controle)));
    QVERIFY(EstSurvolay(*controle));
    // As a window does that is hidden together with what it contains.
    QHideEvent cachay;
    QCoreApplication::sendEvent(controle, &cachay);
    QVERIFY(!EstSurvolay(*controle));

    DeplaceSouris({5, 5});
    DeplaceSouris(Dedans(Libelle(*controle)));
    QVERIFY(EstSurvolay(*controle));
    controle->hide();
    QVERIFY(!EstSurvolay(*controle));
    controle->move(100, 200);
    controle->show();
    QVERIFY(!EstSurvolay(*controle));
}

QTEST_MAIN(tst_DBoutonAbstraitPeinture)
#include "tst_DBoutonAbstraitPeinture.moc"
