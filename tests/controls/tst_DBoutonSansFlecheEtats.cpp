// tests/controls/tst_DBoutonSansFlecheEtats.cpp
#include "controls/EssaisSansFleche.h"

#include "controls/EtatsBouton.h"
#include "controls/StyleNommay.h"

#include <QMenu>
#include <QtTest>

using namespace EssaisSansFleche;
using namespace EtatsBouton;
using namespace Qt::StringLiterals;

// In each state the button looks like one that has no menu.
class tst_DBoutonSansFlecheEtats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void commeSansMenu_data();
    void commeSansMenu();
};

void tst_DBoutonSansFlecheEtats::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonSansFlecheEtats::commeSansMenu_data()
{
    QTest::addColumn<QString>("nomStyle");
    QTest::addColumn<Reglages>("reglages");
    QTest::addColumn<eEtat>("etat");
    QTest::addColumn<QPoint>("souris");
    QPoint const milieu(kTaille.width() / 2, kTaille.height() / 2);
    QPoint const partieMenu(kTaille.width() - 3, milieu.y());
    struct
    {
        char const * nom;
        eEtat etat;
        bool autoRaise;
        QPoint souris;
    } const lignes[] = {
        {"hovered, auto-raise", kSurvolay, true, milieu},
        {"hovered over the part for the menu, auto-raise", kSurvolay, true, partieMenu},
        {"pressed", kEnfoncay, false, milieu},
        {"pressed, auto-raise", kEnfoncay, true, milieu},
        {"checked, auto-raise", kCochay, true, milieu},
        {"focus", kFocus, false, milieu},
        {"focus, auto-raise", kFocus, true, milieu},
        {"disabled", kDesactivay, false, milieu},
        {"disabled, auto-raise", kDesactivay, true, milieu},
    };
    std::pair<char const *, QToolButton::ToolButtonPopupMode> const modes[] = {
        {"delayed", QToolButton::DelayedPopup},
        {"menu button", QToolButton::MenuButtonPopup},
        {"instant", QToolButton::InstantPopup},
    };
    for (char const * const style : {"Fusion", "Windows", "DStyleProxy"}) {
        for (auto const & [nomMode, mode] : modes) {
            for (auto const & ligne : lignes)
                QTest::addRow("%s, %s, %s", style, nomMode, ligne.nom)
                    << QString::fromLatin1(style)
                    << Reglages{.mode = mode, .autoRaise = ligne.autoRaise} << ligne.etat
                    << ligne.souris;
        }
    }
}

void tst_DBoutonSansFlecheEtats::commeSansMenu()
{
    QFETCH(QString, nomStyle);
    QFETCH(Reglages, reglages);
    QFETCH(eEtat, etat);
    QFETCH(QPoint, souris);
    auto const style = DonneStyleNommay(nomStyle);
    QMenu menu;
    auto const sansMenu = [&](QToolButton & bouton) {
        Regle(bouton, style.get(), {.autoRaise = reglages.autoRaise});
    };
    auto const avecMenu = [&](QToolButton & bouton) {
        Regle(bouton, style.get(), reglages);
        bouton.setMenu(&menu);
    };
    QImage const attendu = RenduEnEtat<QToolButton>(etat, souris, sansMenu);
    QVERIFY(!attendu.isNull());
    QVERIFY(attendu != RenduEnEtat<QToolButton>(kRepos, souris, sansMenu)); // the state shows
    QVERIFY(attendu != RenduEnEtat<QToolButton>(etat, souris, avecMenu));   // so would an arrow
    QCOMPARE(RenduEnEtat<DBoutonSansFleche>(etat, souris, avecMenu), attendu);
}

QTEST_MAIN(tst_DBoutonSansFlecheEtats)
#include "tst_DBoutonSansFlecheEtats.moc"
