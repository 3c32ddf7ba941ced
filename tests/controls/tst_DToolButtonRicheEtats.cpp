// tests/controls/tst_DToolButtonRicheEtats.cpp
#include "controls/DToolButtonRiche.h"

#include "controls/EtatsBouton.h"
#include "controls/StyleNommay.h"

#include <QPainter>
#include <QtTest>

using namespace EtatsBouton;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(200, 60);
constexpr QColor kFond(255, 0, 0);

QImage Sans(QImage image, QRect const & rect)
{
    QPainter(&image).fillRect(rect, Qt::white);
    return image;
}

} // namespace

// Around its HTML the button looks like any tool button in the same state.
class tst_DToolButtonRicheEtats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void commeUnOrdinaire_data();
    void commeUnOrdinaire();
};

void tst_DToolButtonRicheEtats::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToolButtonRicheEtats::commeUnOrdinaire_data()
{
    QTest::addColumn<QString>("nomStyle");
    QTest::addColumn<eEtat>("etat");
    QTest::addColumn<bool>("autoRaise");
    struct
    {
        char const * nom;
        eEtat etat;
        bool autoRaise;
    } const lignes[] = {
        {"hovered, auto-raise", kSurvolay, true},
        {"pressed", kEnfoncay, false},
        {"pressed, auto-raise", kEnfoncay, true},
        {"checked, auto-raise", kCochay, true},
        {"focus", kFocus, false},
        {"focus, auto-raise", kFocus, true},
        {"disabled", kDesactivay, false},
    };
    for (char const * const style : {"Fusion", "DStyleProxy"}) {
        for (auto const & ligne : lignes)
            QTest::addRow("%s, %s", style, ligne.nom)
                << QString::fromLatin1(style) << ligne.etat << ligne.autoRaise;
    }
}

void tst_DToolButtonRicheEtats::commeUnOrdinaire()
{
    QFETCH(QString, nomStyle);
    QFETCH(eEtat, etat);
    QFETCH(bool, autoRaise);
    auto const style = DonneStyleNommay(nomStyle);
    auto const commun = [&](QToolButton & bouton) {
        bouton.setStyle(style.get());
        bouton.setAutoRaise(autoRaise);
        bouton.resize(kTaille);
    };
    auto const ordinaire = [&](QToolButton & bouton) {
        commun(bouton);
        bouton.setText(u"MMM"_s);
        QPalette palette = bouton.palette();
        palette.setBrush(QPalette::ButtonText, Qt::transparent);
        bouton.setPalette(palette);
    };
    auto const riche = [&](DToolButtonRiche & bouton) {
        commun(bouton);
        // A box in one colour, whatever the fonts.
        bouton.setHtml(u"<span style=\"background-color:#ff0000; color:#ff0000\">MMM</span>"_s);
    };
    QPoint const souris(5, 5);
    QImage const obtenu = RenduEnEtat<DToolButtonRiche>(etat, souris, riche);
    QImage const attendu = RenduEnEtat<QToolButton>(etat, souris, ordinaire);
    QImage const repos = RenduEnEtat<QToolButton>(kRepos, souris, ordinaire);
    QVERIFY(!attendu.isNull());
    QRect const boite = Encre::BornesDe(obtenu, kFond);
    QVERIFY(boite.isValid());
    QVERIFY(Sans(attendu, boite) != Sans(repos, boite)); // the style shows the state
    QCOMPARE(Sans(obtenu, boite), Sans(attendu, boite));
}

QTEST_MAIN(tst_DToolButtonRicheEtats)
#include "tst_DToolButtonRicheEtats.moc"
