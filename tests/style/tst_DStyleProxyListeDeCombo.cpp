// tests/style/tst_DStyleProxyListeDeCombo.cpp
#include "style/EssaisItemsRiches.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

// The rich items of a combo box's list.
class tst_DStyleProxyListeDeCombo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void parLaCombo_data();
    void parLaCombo();
    void sansRegle();
    void sansEnsemble();
    void cocheGardeSaPlace();
    void parSonConteneur();

private:
    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyListeDeCombo::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyListeDeCombo::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyListeDeCombo::parLaCombo_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("couleur");
    QTest::newRow("normal") << kNormal << QColor(Qt::red);
    QTest::newRow("selected") << kSelection << QColor(Qt::green);
    QTest::newRow("under the mouse") << kSurvol << QColor(Qt::blue);
}

// The combo box has the rules of its list.
void tst_DStyleProxyListeDeCombo::parLaCombo()
{
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, couleur);
    QComboBox combo;
    MetsRegles(combo);

    QImage const image = PeinsItem(*monBanc, DonneOption(etat), combo.view());

    QCOMPARE(PrendsTexteDeLaBase(*monBanc), QString());
    for (QColor const & essayee : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)})
        QCOMPARE(!Etendue(image, essayee).isEmpty(), essayee == couleur);
}

// The base was not given the text: it's written as it stands.
void tst_DStyleProxyListeDeCombo::sansRegle()
{
    QComboBox combo;
    MetsRegles(combo);
    for (QString const & texte : {u"Mot"_s, u"<z>o</z>"_s}) {
        PeinsItem(*monBanc, DonneOption(kNormal, texte), combo.view());
        auto const textes = monBanc->espion->Donne(AppelStyle::kTexte);
        QCOMPARE(textes.size(), 1);
        QCOMPARE(textes.first().texte, texte);
        QVERIFY(kRect.contains(textes.first().rect));
        QCOMPARE(PrendsTexteDeLaBase(*monBanc), QString());
    }
}

// Rich, and no rules: a delegate writes the texts.
void tst_DStyleProxyListeDeCombo::sansEnsemble()
{
    QComboBox combo;
    combo.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    for (QString const & texte : {u"Mot"_s, u"<b>Mot</b>"_s}) {
        QVERIFY(EstVide(PeinsItem(*monBanc, DonneOption(kNormal, texte), combo.view())));
        QVERIFY(monBanc->espion->Donne(AppelStyle::kTexte).isEmpty());
        QCOMPARE(PrendsTexteDeLaBase(*monBanc), QString());
    }
}

// Not in the middle, where it would be of an item that had no text before.
void tst_DStyleProxyListeDeCombo::cocheGardeSaPlace()
{
    QComboBox combo;
    MetsRegles(combo);
    QStyleOptionViewItem option = DonneOption(kNormal, u"Mot"_s);
    option.features |= QStyleOptionViewItem::HasCheckIndicator;

    PeinsItem(*monBanc, option, combo.view());
    option.text = PrendsTexteDeLaBase(*monBanc);

    QCOMPARE(option.text, u" "_s);
    QRect const coche =
        monBanc->style.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, combo.view());
    QRect const texte =
        monBanc->style.subElementRect(QStyle::SE_ItemViewItemText, &option, combo.view());
    QVERIFY(!coche.intersects(texte));
}

void tst_DStyleProxyListeDeCombo::parSonConteneur()
{
    QComboBox combo;
    QWidget * const conteneur = combo.view()->parentWidget();
    QVERIFY(conteneur->inherits("QComboBoxPrivateContainer"));
    MetsRegles(*conteneur);

    QImage const image = PeinsItem(*monBanc, DonneOption(kSelection), combo.view());

    QCOMPARE(PrendsTexteDeLaBase(*monBanc), QString());
    QVERIFY(!Etendue(image, Qt::green).isEmpty());
}

QTEST_MAIN(tst_DStyleProxyListeDeCombo)
#include "tst_DStyleProxyListeDeCombo.moc"
