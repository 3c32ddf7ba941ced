// tests/editing/tst_DLineEditStyle.cpp
//
// DLineEdit below styles that refresh it when they polish it, and style sheets.
#include "editing/DLineEdit.h"
#include "foundation/ThemesQt.h"

#include <QtTest>

#include <QProxyStyle>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace {

const QColor kRouge(238, 0, 0);

class StyleEspion : public QProxyStyle
{
public:
    explicit StyleEspion(bool rafraichit)
        : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
        , monRafraichit(rafraichit)
    {
    }

    int polis = 0;
    int depolis = 0;
    int profondeurMax = 0;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void polish(QWidget * widget) override
    {
        QProxyStyle::polish(widget);
        auto * champ = qobject_cast<DLineEdit *>(widget);
        if (!champ)
            return;
        ++polis;
        profondeurMax = std::max(profondeurMax, ++maProfondeur);
        if (monRafraichit)
            champ->MetsAJourPalette();
        --maProfondeur;
    }

    void unpolish(QWidget * widget) override
    {
        depolis += qobject_cast<DLineEdit *>(widget) != nullptr;
        QProxyStyle::unpolish(widget);
    }

private:
    bool monRafraichit;
    int maProfondeur = 0;
};

QColor Texte(QWidget const & champ)
{
    return champ.palette().color(QPalette::Text);
}

void Survole(DLineEdit & champ, bool entre)
{
    QHoverEvent evenement(entre ? QEvent::HoverEnter : QEvent::HoverLeave, QPointF(1, 1),
                          QPointF(1, 1), QPointF());
    QApplication::sendEvent(&champ, &evenement);
}

} // namespace

class tst_DLineEditStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void erreurRepolit();
    void erreurRepolit_data();
    void sousUneFeuille_data();
    void sousUneFeuille();
    void feuilleMiseEtRetiree_data();
    void feuilleMiseEtRetiree();
    void erreurAvantLePremierAffichage_data();
    void erreurAvantLePremierAffichage();
    void selecteurErreur_data();
    void selecteurErreur();
    void repoliParLApplication_data();
    void repoliParLApplication();
    void styleChangay();
    void survolSousToutStyle();

private:
    StyleEspion * PoseStyle();
};

void tst_DLineEditStyle::init()
{
    QVERIFY(qApp->styleSheet().isEmpty());
}

void tst_DLineEditStyle::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setStyle(u"Fusion"_s);
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

namespace {

void AjouteStyles()
{
    QTest::addColumn<bool>("rafraichit");
    QTest::newRow("the style refreshes the field") << true;
    QTest::newRow("the style does not know the field") << false;
}

} // namespace

StyleEspion * tst_DLineEditStyle::PoseStyle()
{
    QFETCH(bool, rafraichit);
    auto * style = new StyleEspion(rafraichit);
    QApplication::setStyle(style);
    return style;
}

void tst_DLineEditStyle::erreurRepolit_data()
{
    AjouteStyles();
}

void tst_DLineEditStyle::erreurRepolit()
{
    StyleEspion * const style = PoseStyle();
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    QCOMPARE(style->depolis, 1);
    QCOMPARE(style->polis, 1);
    QCOMPARE(Texte(champ), kRouge);
    champ.MetsErreur(true);
    QCOMPARE(style->polis, 1);
    champ.MetsErreur(false);
    QCOMPARE(style->depolis, 2);
    QCOMPARE(style->polis, 2);
    champ.MetsErreur(false);
    QCOMPARE(style->polis, 2);
    QCOMPARE(style->profondeurMax, 1);
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
}

void tst_DLineEditStyle::sousUneFeuille_data()
{
    AjouteStyles();
}

void tst_DLineEditStyle::sousUneFeuille()
{
    StyleEspion * const style = PoseStyle();
    qApp->setStyleSheet(u"QLineEdit { color: #ffffff; background: #202020; }"_s);
    DLineEdit champ(nullptr);
    champ.ensurePolished();
    QCOMPARE(Texte(champ), QColor(Qt::white));
    for (int tour = 0; tour < 3; ++tour) {
        champ.MetsErreur(true);
        QCOMPARE(Texte(champ), kRouge); // above the sheet's
        Survole(champ, true);
        QCOMPARE(Texte(champ), QColor(Qt::white)); // and not the application's black
        Survole(champ, false);
        QCOMPARE(Texte(champ), kRouge);
        champ.MetsErreur(false);
        QCOMPARE(Texte(champ), QColor(Qt::white));
        champ.MetsAJourPalette();
        QCOMPARE(Texte(champ), QColor(Qt::white));
    }
    QCOMPARE(style->profondeurMax, 1);
}

void tst_DLineEditStyle::feuilleMiseEtRetiree_data()
{
    AjouteStyles();
}

void tst_DLineEditStyle::feuilleMiseEtRetiree()
{
    StyleEspion * const style = PoseStyle();
    DLineEdit champ(nullptr);
    champ.ensurePolished();
    champ.MetsErreur(true);

    qApp->setStyleSheet(u"QLineEdit { color: #ffffff; selection-color: #010203; }"_s);
    QCOMPARE(Texte(champ), kRouge);
    QCOMPARE(champ.palette().color(QPalette::HighlightedText), QColor(1, 2, 3));
    Survole(champ, true);
    QCOMPARE(Texte(champ), QColor(Qt::white));
    qApp->setStyleSheet(u"QLineEdit { color: #00ff00; }"_s);
    QCOMPARE(Texte(champ), QColor(0, 255, 0));
    QVERIFY(champ.palette().color(QPalette::HighlightedText) != QColor(1, 2, 3));
    Survole(champ, false);
    QCOMPARE(Texte(champ), kRouge);
    qApp->setStyleSheet(u"QLineEdit { color: #0000ff; }"_s);
    QCOMPARE(Texte(champ), kRouge);

    qApp->setStyleSheet(QString());
    QCOMPARE(Texte(champ), kRouge);
    champ.MetsErreur(false);
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
    QCOMPARE(style->profondeurMax, 1);
}

void tst_DLineEditStyle::erreurAvantLePremierAffichage_data()
{
    AjouteStyles();
}

void tst_DLineEditStyle::erreurAvantLePremierAffichage()
{
    PoseStyle();
    qApp->setStyleSheet(u"QLineEdit { color: #ffffff; }"_s);
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    champ.ensurePolished(); // not shown: the mouse could be where it appears
    QCOMPARE(Texte(champ), kRouge);
    champ.MetsErreur(false);
    QCOMPARE(Texte(champ), QColor(Qt::white));
}

void tst_DLineEditStyle::selecteurErreur_data()
{
    AjouteStyles();
}

void tst_DLineEditStyle::selecteurErreur()
{
    PoseStyle();
    qApp->setStyleSheet(u"DLineEdit { color: #ffffff; padding-left: 0px; }"
                        "DLineEdit[erreur=\"true\"] { padding-left: 37px; color: #00ff00; }"_s);
    DLineEdit champ(nullptr);
    champ.ensurePolished();
    int const largeur = champ.minimumSizeHint().width();
    champ.MetsErreur(true);
    QCOMPARE(champ.minimumSizeHint().width(), largeur + 37);
    QCOMPARE(Texte(champ), kRouge);
    // With the user in the field, the text is the sheet's, which knows of the error.
    Survole(champ, true);
    QCOMPARE(Texte(champ), QColor(0, 255, 0));
    QCOMPARE(champ.minimumSizeHint().width(), largeur + 37);
    champ.MetsErreur(false);
    QCOMPARE(champ.minimumSizeHint().width(), largeur);
    QCOMPARE(Texte(champ), QColor(Qt::white));
}

void tst_DLineEditStyle::repoliParLApplication_data()
{
    AjouteStyles();
}

// As applications do after changing another property.
void tst_DLineEditStyle::repoliParLApplication()
{
    PoseStyle();
    qApp->setStyleSheet(
        u"QLineEdit { color: #ffffff; } QLineEdit[ton=\"1\"] { color: #00ff00; }"_s);
    DLineEdit champ(nullptr);
    champ.ensurePolished();
    auto const repolit = [&champ](int ton) {
        champ.setProperty("ton", ton);
        champ.style()->unpolish(&champ);
        champ.style()->polish(&champ);
    };
    repolit(1);
    QCOMPARE(Texte(champ), QColor(0, 255, 0));
    champ.MetsErreur(true);
    repolit(2);
    QCOMPARE(Texte(champ), kRouge);
    Survole(champ, true);
    QCOMPARE(Texte(champ), QColor(Qt::white));
    repolit(1);
    QCOMPARE(Texte(champ), QColor(0, 255, 0));
    champ.MetsErreur(false);
    QCOMPARE(Texte(champ), QColor(0, 255, 0));
}

void tst_DLineEditStyle::styleChangay()
{
    DLineEdit champ(nullptr);
    champ.ensurePolished();
    champ.MetsErreur(true);
    auto * style = new StyleEspion(true);
    QApplication::setStyle(style);
    QCOMPARE(Texte(champ), kRouge);
    QCOMPARE(style->profondeurMax, 1);
    QApplication::setStyle(u"Windows"_s);
    QCOMPARE(Texte(champ), kRouge);
    champ.MetsErreur(false);
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
}

void tst_DLineEditStyle::survolSousToutStyle()
{
    for (QString const & nom : QStyleFactory::keys()) {
        QApplication::setStyle(nom);
        DLineEdit champ(nullptr);
        champ.MetsErreur(true);
        champ.ensurePolished();
        QVERIFY2(champ.testAttribute(Qt::WA_Hover), qPrintable(nom));
    }
}

QTEST_MAIN(tst_DLineEditStyle)
#include "tst_DLineEditStyle.moc"
