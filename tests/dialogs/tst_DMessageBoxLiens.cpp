// tests/dialogs/tst_DMessageBoxLiens.cpp
#include "EssaisBoites.h"

#include "dialogs/StockageReponse.h"

#include "outils/BureauSimulay.h"

#include <QLabel>
#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

class tst_DMessageBoxLiens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nombre_data();
    void nombre();
    void nombreSansEchap();
    void nombreAvecEchapDeQt();
    void nombreEnBloquant();
    void adresse_data();
    void adresse();
    void clicSurUnLien();
    void lienDansChaqueTexte_data();
    void lienDansChaqueTexte();
    void clavierSurUnLien();
    void sansLienPasDArretDeTabulation();

private:
    DMessageBox * Montre(QString const & message, int boutons, eBoutons echap);

    BureauSimulay * monBureau = nullptr;
    QList<eBoutons> mesReponses;
};

void tst_DMessageBoxLiens::init()
{
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    PlateformeBureau::Installe(std::move(bureau));
    mesReponses.clear();
}

void tst_DMessageBoxLiens::cleanup()
{
    if (DMessageBox * const boite = DonneBoiteVisible())
        boite->PriseResultat(QVariant::fromValue(kBoutonAucun));
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
    PlateformeBureau::Installe(nullptr);
}

DMessageBox * tst_DMessageBoxLiens::Montre(QString const & message, int boutons, eBoutons echap)
{
    DAlerteInfo const info(DAlerteInfo::kQuestion, message, {}, u"Essai"_s);
    DAlerte(nullptr, info, boutons, kBoutonOui, echap, std::list<UniChaine>(),
            [this](eBoutons const & reponse) { mesReponses.append(reponse); });
    return DonneBoiteVisible();
}

void tst_DMessageBoxLiens::nombre_data()
{
    QTest::addColumn<QString>("cible");
    QTest::addColumn<int>("resultat");
    QTest::newRow("a number") << u"7"_s << (7 | int(kBoutonLien));
    QTest::newRow("zero") << u"0"_s << int(kBoutonLien);
    QTest::newRow("negative") << u"-1"_s << -1;
    QTest::newRow("with blanks around") << u" 12 "_s << (12 | int(kBoutonLien));
}

void tst_DMessageBoxLiens::nombre()
{
    QFETCH(QString, cible);
    QFETCH(int, resultat);
    DMessageBox * const boite =
        Montre(u"<a href='1'>un</a>"_s, kBoutonOui | kBoutonNon, kBoutonNon);
    boite->PriseHyperlien(cible);
    QVERIFY(!boite->isVisible());
    QCOMPARE(mesReponses, QList{kBoutonNon}); // the escape button's
    QCOMPARE(boite->result(), resultat);      // the number is here alone
    QVERIFY(monBureau->urlsOuvertes.isEmpty());
}

void tst_DMessageBoxLiens::nombreSansEchap()
{
    DMessageBox * const boite = Montre(u"Message"_s, kBoutonOui | kBoutonOk, kBoutonAucun);
    boite->PriseHyperlien(u"7"_s);
    QVERIFY(boite->isVisible());
    QVERIFY(mesReponses.isEmpty());
    QCOMPARE(boite->result(), 7 | int(kBoutonLien));
}

void tst_DMessageBoxLiens::nombreAvecEchapDeQt()
{
    // No escape button was asked for; Qt has found the only button there is.
    DMessageBox * const boite = Montre(u"Message"_s, kBoutonOui, kBoutonAucun);
    boite->PriseHyperlien(u"7"_s);
    QVERIFY(!boite->isVisible());
    QCOMPARE(mesReponses, QList{kBoutonAnnuler});
}

void tst_DMessageBoxLiens::nombreEnBloquant()
{
    DAlerteInfo const info(DAlerteInfo::kQuestion, u"Message"_s, {}, u"Essai"_s);
    QuandLaBoiteEstLa([](DMessageBox & boite) { boite.PriseHyperlien(u"7"_s); });
    QCOMPARE(DAlerte(nullptr, info, kBoutonOui | kBoutonNon, kBoutonOui, kBoutonNon), kBoutonNon);
}

void tst_DMessageBoxLiens::adresse_data()
{
    QTest::addColumn<QString>("cible");
    QTest::addColumn<bool>("ouverte");
    QTest::newRow("a page") << u"https://example.org/a?b=1"_s << true;
    QTest::newRow("an address of mail") << u"mailto:a@example.org"_s << true;
    QTest::newRow("too large for a number, still a path") << u"99999999999"_s << true;
    QTest::newRow("not a number any more") << u"7a"_s << true;
    QTest::newRow("invalid") << u"http://[::1"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_DMessageBoxLiens::adresse()
{
    QFETCH(QString, cible);
    QFETCH(bool, ouverte);
    DMessageBox * const boite = Montre(u"Message"_s, kBoutonOui | kBoutonNon, kBoutonNon);
    boite->PriseHyperlien(cible);
    QVERIFY(boite->isVisible());
    QVERIFY(mesReponses.isEmpty());
    QCOMPARE(monBureau->urlsOuvertes.size(), ouverte ? 1 : 0);
    if (ouverte) {
        QCOMPARE(monBureau->urlsOuvertes.constFirst().first, QUrl(cible));
        QCOMPARE(monBureau->urlsOuvertes.constFirst().second, QString()); // the user's browser
    }
}

void tst_DMessageBoxLiens::clicSurUnLien()
{
    DMessageBox * const boite =
        Montre(u"<a href='https://example.org/'>\u2588\u2588\u2588\u2588</a>"_s,
               kBoutonOui | kBoutonNon, kBoutonNon);
    auto * const etiquette = boite->findChild<QLabel *>(u"qt_msgbox_label"_s);
    QTest::mouseClick(etiquette, Qt::LeftButton, {}, QPoint(6, etiquette->height() / 2));
    QCOMPARE(monBureau->urlsOuvertes.size(), 1);
    QVERIFY(boite->isVisible());
}

void tst_DMessageBoxLiens::lienDansChaqueTexte_data()
{
    QTest::addColumn<QString>("etiquette");
    QTest::addColumn<eTypStockeur>("type");
    for (QString const & etiquette : {u"qt_msgbox_label"_s, u"qt_msgbox_informativelabel"_s}) {
        QTest::addRow("%s", qPrintable(etiquette)) << etiquette << StockeurParDefaut;
        QTest::addRow("%s, with the check box", qPrintable(etiquette))
            << etiquette << StockeurNePlusMAviser;
    }
}

void tst_DMessageBoxLiens::lienDansChaqueTexte()
{
    QFETCH(QString, etiquette);
    QFETCH(eTypStockeur, type);
    DAlerteInfo const info(DAlerteInfo::kQuestion, u"<a href='https://example.org/'>un</a>"_s,
                           u"<a href='https://example.org/'>deux</a>"_s);
    DAlerteRappel(nullptr, info, type, {}, kBoutonOui | kBoutonNon, kBoutonOui, kBoutonNon,
                  [this](eBoutons const & reponse) { mesReponses.append(reponse); });
    auto * const texte = DonneBoiteVisible()->findChild<QLabel *>(etiquette);
    QVERIFY(texte);
    Q_EMIT texte->linkActivated(u"https://example.org/"_s);
    QCOMPARE(monBureau->urlsOuvertes.size(), 1); // the connection is made once
    Q_EMIT texte->linkActivated(u"7"_s);
    QCOMPARE(mesReponses, QList{kBoutonNon});
}

void tst_DMessageBoxLiens::clavierSurUnLien()
{
    DMessageBox * const boite = Montre(u"Lire <a href='https://example.org/'>la page</a>."_s,
                                       kBoutonOui | kBoutonNon, kBoutonNon);
    auto * const etiquette = boite->findChild<QLabel *>(u"qt_msgbox_label"_s);
    boite->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(boite));
    for (int i = 0; i < 5 && boite->focusWidget() != etiquette; ++i)
        QTest::keyClick(boite->focusWidget(), Qt::Key_Tab);
    QCOMPARE(boite->focusWidget(), etiquette);
    QTest::keyClick(etiquette, Qt::Key_Tab); // from the text to its first link
    QCOMPARE(boite->focusWidget(), etiquette);
    QTest::keyClick(etiquette, Qt::Key_Return);
    QCOMPARE(monBureau->urlsOuvertes.size(), 1);
    QVERIFY(boite->isVisible());
    QVERIFY(mesReponses.isEmpty());
}

void tst_DMessageBoxLiens::sansLienPasDArretDeTabulation()
{
    DMessageBox * const boite = Montre(u"Message"_s, kBoutonOui | kBoutonNon, kBoutonNon);
    boite->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(boite));
    for (int i = 0; i < 4; ++i) {
        QVERIFY(qobject_cast<QAbstractButton *>(boite->focusWidget()));
        QTest::keyClick(boite->focusWidget(), Qt::Key_Tab);
    }
}

QTEST_MAIN(tst_DMessageBoxLiens)
#include "tst_DMessageBoxLiens.moc"
