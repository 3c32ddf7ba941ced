// tests/galerie/tst_PageStyle.cpp
#include "PageStyle.h"

#include "EssaisStyle.h"
#include "EtatDessinay.h"
#include "ProprietesMontrees.h"

#include "foundation/ThemesQt.h"
#include "style/DStyleProxy.h"

#include <QPixmapCache>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kEtats = 6;

// The states of the rows of that name, one after the other.
QList<EtatDessinay *> DonneDessinay(QWidget const & page, QString const & nom)
{
    return page.findChildren<EtatDessinay *>(nom);
}

QList<QImage> Photographie(QList<EtatDessinay *> const & dessinay)
{
    // What the base style keeps of one row must not stand for another one.
    QPixmapCache::clear();
    QList<QImage> images;
    for (EtatDessinay * const dessin : dessinay)
        images.append(dessin->grab().toImage());
    return images;
}

} // namespace

class tst_PageStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void toutesLesProprietes();
    void proprieteMontreSonEffet_data();
    void proprieteMontreSonEffet();
    void modelesPortentLaPropriete();
    void etatsDifferents_data();
    void etatsDifferents();
    void menuQuiDefile();
    void stylesDeBase();
    void styleDeBaseInconnu();
    void deDroiteAGauche();
    void paletteChangee();
    void menuBalisay();
};

void tst_PageStyle::cleanup()
{
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageStyle::toutesLesProprietes()
{
    constexpr int kProprietes = 21;
    QSet<QByteArray> noms;
    for (ProprieteMontree const & propriete : DonneProprietesMontrees())
        noms.insert(propriete.nom);
    QCOMPARE(noms.size(), kProprietes);
    QCOMPARE(DonneProprietesMontrees().size(), kProprietes);

    PageStyle const page(u"Fusion"_s);
    QStringList textes;
    for (QLabel const * const etiquette : page.findChildren<QLabel *>())
        textes.append(etiquette->text());
    for (QByteArray const & nom : noms)
        QVERIFY2(textes.contains(QString::fromLatin1(nom)), nom.constData());
}

void tst_PageStyle::proprieteMontreSonEffet_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("styleDeBase");
    QTest::addColumn<bool>("visible");
    for (ProprieteMontree const & propriete : DonneProprietesMontrees()) {
        if (propriete.dessins.isEmpty())
            continue;
        QString const nom = QString::fromLatin1(propriete.nom);
        // One style only shifts the content of a pressed button.
        bool const decalage = nom == u"DStyleProxyBoutonSansDecalage";
        QTest::newRow(propriete.nom)
            << nom << (decalage ? u"Windows"_s : u"Fusion"_s)
            << (nom != QLatin1StringView(DStyleProxy::DonneNomStyleCouleurBordure()));
    }
}

void tst_PageStyle::proprieteMontreSonEffet()
{
    QFETCH(QString, nom);
    QFETCH(QString, styleDeBase);
    QFETCH(bool, visible);
    PageStyle const page(styleDeBase);
    QCOMPARE(page.findChild<QComboBox *>(u"styleDeBase"_s)->currentText(), styleDeBase);

    QList<QImage> const sans = Photographie(DonneDessinay(page, nom + u"/sans"_s));
    QList<QImage> const avec = Photographie(DonneDessinay(page, nom + u"/avec"_s));

    QVERIFY(!sans.isEmpty() && sans.size() % kEtats == 0);
    QCOMPARE(avec.size(), sans.size());
    QCOMPARE(avec != sans, visible);
}

void tst_PageStyle::modelesPortentLaPropriete()
{
    PageStyle const page(u"Fusion"_s);
    for (ProprieteMontree const & propriete : DonneProprietesMontrees()) {
        QString const nom = QString::fromLatin1(propriete.nom);
        for (EtatDessinay const * const dessin : DonneDessinay(page, nom + u"/avec"_s))
            QVERIFY2(dessin->PreteModele().property(propriete.nom).isValid(), propriete.nom);
        for (EtatDessinay const * const dessin : DonneDessinay(page, nom + u"/sans"_s)) {
            QVERIFY2(!dessin->PreteModele().property(propriete.nom).isValid(), propriete.nom);
            QVERIFY(dessin->PreteModele().isHidden());
        }
    }
}

void tst_PageStyle::etatsDifferents_data()
{
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QList<int>>("egaux"); // states that look normal in this base style
    QTest::newRow("default button") << u"Bouton par défaut"_s << QList<int>{4};
    QTest::newRow("button") << u"Bouton"_s << QList<int>{};
    QTest::newRow("tool button") << u"Bouton d’outil"_s << QList<int>{};
    QTest::newRow("check box") << u"Case à cocher"_s << QList<int>{1};
    QTest::newRow("tab") << u"Onglet"_s << QList<int>{};
    QTest::newRow("row") << u"Rang d’une cellule"_s << QList<int>{};
}

void tst_PageStyle::etatsDifferents()
{
    QFETCH(QString, titre);
    QFETCH(QList<int>, egaux);
    PageStyle const page(u"Fusion"_s);
    QList<QImage> images;
    for (EtatDessinay * const dessin : DonneDessinay(page, u"etats"_s))
        if (dessin->accessibleName().startsWith(titre + u", "_s))
            images.append(dessin->grab().toImage());
    QCOMPARE(images.size(), kEtats);

    for (int i = 1; i < kEtats; ++i)
        QVERIFY2((images.at(i) == images.at(0)) == egaux.contains(i),
                 qPrintable(QString::number(i)));
}

void tst_PageStyle::menuQuiDefile()
{
    PageStyle const page(u"Fusion"_s);
    QList<QMenu *> menus;
    for (QPushButton const * const bouton : page.findChildren<QPushButton *>())
        if (bouton->menu() && !bouton->menu()->isEmpty())
            menus.append(bouton->menu());
    QCOMPARE(menus.size(), 2);

    auto const defile = [](QMenu const * menu) {
        return menu->style()->styleHint(QStyle::SH_Menu_Scrollable, nullptr, menu);
    };
    QCOMPARE(defile(menus.at(0)), 0);
    QCOMPARE(defile(menus.at(1)), 1);
}

void tst_PageStyle::stylesDeBase()
{
    PageStyle const page(u"fusion"_s);
    auto * const choix = page.findChild<QComboBox *>(u"styleDeBase"_s);
    QCOMPARE(choix->count(), QStyleFactory::keys().size());
    QCOMPARE(choix->currentText(), u"Fusion"_s);
    QList<QImage> const surFusion = Photographie(DonneDessinay(page, u"etats"_s));

    choix->setCurrentText(u"Windows"_s);

    QVERIFY(Photographie(DonneDessinay(page, u"etats"_s)) != surFusion);
    auto const & essais = *page.findChild<EssaisStyle *>();
    for (QWidget const * const widget : essais.findChildren<QWidget *>())
        QVERIFY(qobject_cast<DStyleProxy const *>(widget->style()));
    QCOMPARE(qobject_cast<DStyleProxy const *>(essais.findChild<QSlider *>()->style())
                 ->baseStyle()
                 ->name(),
             u"windows"_s);
}

void tst_PageStyle::styleDeBaseInconnu()
{
    PageStyle const page(u"inconnu"_s);
    QCOMPARE(page.findChild<QComboBox *>(u"styleDeBase"_s)->currentText(), u"Fusion"_s);
}

void tst_PageStyle::deDroiteAGauche()
{
    PageStyle const page(u"Fusion"_s);
    auto const cases = DonneDessinay(page, u"DStyleProxyEspacementReduitCaseCochay/sans"_s);
    QImage const avant = cases.first()->grab().toImage();

    page.findChild<QCheckBox *>(u"deDroiteAGauche"_s)->setChecked(true);

    QCOMPARE(cases.first()->PreteModele().layoutDirection(), Qt::RightToLeft);
    QVERIFY(cases.first()->grab().toImage() != avant);
    QCOMPARE(page.findChild<EssaisStyle *>()->layoutDirection(), Qt::RightToLeft);
}

void tst_PageStyle::paletteChangee()
{
    PageStyle page(u"Fusion"_s);
    QPointer<QStyle> const avant = page.findChild<QSlider *>()->style();
    QPointer<QStyle> const desEssais =
        page.findChild<EssaisStyle *>()->findChild<QSlider *>()->style();
    QVERIFY(avant && desEssais);

    page.setPalette(QPalette(Qt::darkGray, Qt::black));

    // The style that knew the old colours goes once all widgets have the new one.
    QTRY_VERIFY(!desEssais);
    QVERIFY(qobject_cast<DStyleProxy *>(
        page.findChild<EssaisStyle *>()->findChild<QSlider *>()->style()));
}

void tst_PageStyle::menuBalisay()
{
    QWidget parent;
    QMenu const * const menu = CreeMenuRiche(&parent);
    QVERIFY(menu->property(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()).toBool());
    QCOMPARE(menu->property(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche())
                 .value<MapDeRegles>()
                 .size(),
             4);
}

QTEST_MAIN(tst_PageStyle)
#include "tst_PageStyle.moc"
