// tests/foundation/tst_StyleGeneralGui.cpp
#include "foundation/ThemesQt.h"

#include <QtTest>

#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

#include <memory>

using namespace Qt::StringLiterals;

// Classes of the names that the sheet styles; of the real ones only the name and the base count.
class WidgetListeEditable : public QFrame
{
    Q_OBJECT

public:
    using QFrame::QFrame;
};

class DDialogueAjoutLien : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

namespace {

// Declarations by selector, each set in order of property; the last of two of a property counts.
using Feuille = QMap<QString, QMap<QString, QString>>;

constexpr QRgb kFondTemoin = 0xff123456; // under what is transparent; no colour of the sheet
constexpr QRgb kBordure = 0xffbbbbbb;    // couleurBordureGui
constexpr QRgb kSeparateur = 0xffdcdcdc; // couleurSeparateur
constexpr QRgb kBlanc = 0xffffffff;

QString LisFeuille()
{
    QFile fichier(u":/Style/StyleGeneralGui.qss"_s);
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

// The sheet of an application that sets lists in 17 pixels.
QString DonneFeuilleAppliquee()
{
    ThemesQt themes;
    themes.AjouterVariable(u"widgetListeEditableFontSize"_s, u"17px"_s);
    return themes.AppliquerVariable(LisFeuille());
}

// Empty when something stands outside the blocks, or is no declaration in one.
Feuille Analyse(QString texte)
{
    static QRegularExpression const commentaire(u"/\\*.*?\\*/"_s,
                                                QRegularExpression::DotMatchesEverythingOption);
    static QRegularExpression const bloc(u"([^{}]+)\\{([^{}]*)\\}"_s);
    texte.remove(commentaire);
    Feuille feuille;
    for (auto it = bloc.globalMatch(texte); it.hasNext();) {
        QRegularExpressionMatch const trouve = it.next();
        for (QString const & selecteur : trouve.captured(1).split(u',')) {
            auto & declarations = feuille[selecteur.simplified()];
            for (QString const & ligne : trouve.captured(2).split(u';')) {
                if (ligne.trimmed().isEmpty())
                    continue;
                if (ligne.count(u':') != 1)
                    return {};
                declarations[ligne.section(u':', 0, 0).trimmed()] =
                    ligne.section(u':', 1).simplified();
            }
        }
    }
    return texte.remove(bloc).trimmed().isEmpty() ? feuille : Feuille();
}

QStringList EnLignes(QMap<QString, QString> const & declarations)
{
    QStringList lignes;
    for (auto it = declarations.begin(); it != declarations.end(); ++it)
        lignes.append(it.key() + u": "_s + it.value());
    return lignes;
}

struct Decision
{
    QString selecteur;
    QStringList declarations; // in order of property
};

QList<Decision> DonneDecisions()
{
    QStringList const bouton = {
        u"background-color: @couleurFondBlanc"_s,
        u"border: none"_s,
        u"border-right: 1px solid @couleurBordureGui"_s,
        u"margin: 0px"_s,
        u"max-height: 20px"_s,
        u"max-width: 20px"_s,
        u"min-height: 20px"_s,
        u"min-width: 20px"_s,
        u"padding: 0px"_s,
        u"text-align: center"_s,
    };
    QStringList boutonFocus = bouton;
    boutonFocus.first() = u"background-color: #e6f1fc"_s;
    boutonFocus.insert(8, u"outline: none"_s);
    return {
        {u"QToolButton#boutonFermeture"_s, {u"background-color: transparent"_s, u"border: none"_s}},
        {u"QToolButton#boutonFermeture:hover"_s, {u"background-color: #DDDDDD"_s}},
        {u"QToolButton#boutonFermeture[selectionnay=\"false\"]:hover"_s,
         {u"background-color: #CCCCCC"_s}},
        {u"QPushButton#boutonAjoutOnglet"_s, {u"border: none"_s, u"margin: 1px"_s}},
        {u"QPushButton#boutonAjoutOnglet:hover"_s, {u"background-color: #D8D8D8"_s}},
        {u"QPushButton#boutonAjoutOnglet:pressed"_s, {u"background-color: #CFCFCF"_s}},
        {u"WidgetListeEditable"_s,
         {u"border: 1px solid @couleurBordureGui"_s, u"border-radius: 2px"_s, u"margin: 3px"_s}},
        {u"WidgetListeEditable *"_s, {u"font-size: @widgetListeEditableFontSize"_s}},
        {u"WidgetListeEditable QPushButton"_s, bouton},
        {u"WidgetListeEditable QPushButton:focus"_s, boutonFocus},
        {u"WidgetListeEditable QPushButton:disabled"_s, bouton},
        {u"WidgetListeEditable QHeaderView::section"_s,
         {u"border: none"_s, u"border-bottom: 1px solid @couleurBordureGui"_s,
          u"padding-left: 3px"_s}},
        {u"WidgetListeEditable QTreeView"_s,
         {u"border: none"_s, u"border-bottom: 1px solid @couleurSeparateur"_s, u"padding: 0px"_s}},
        {u"DDialogueAjoutLien"_s, {u"background-color: white"_s}},
        {u"QComboBoxListView"_s, {u"background-color: transparent"_s}},
        {u"QToolTip"_s, {u"background-color: @couleurFondBlanc"_s}},
    };
}

// A window of the colour that no rule names.
class FenetreTemoin : public QWidget
{
public:
    FenetreTemoin()
    {
        resize(300, 200);
        QPalette couleurs = palette();
        couleurs.setColor(QPalette::Window, QColor::fromRgba(kFondTemoin));
        setPalette(couleurs);
    }

    // What stands at a place of a child.
    QRgb Pixel(QWidget const & enfant, QPoint const & place)
    {
        QImage const image = grab().toImage();
        return image.pixel(enfant.mapTo(this, place));
    }
};

// The mouse on the middle of a widget, or not on it: without a real one, which others may move.
void Survole(QWidget & widget, bool survol)
{
    widget.ensurePolished(); // which asks for the moves
    widget.setAttribute(Qt::WA_UnderMouse, survol);
    QPointF const place = survol ? QPointF(widget.rect().center()) : QPointF(-1.0, -1.0);
    QMouseEvent mouvement(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &mouvement);
}

// A list in a window, with what its rules name in it.
class FenetreAvecListe : public FenetreTemoin
{
public:
    FenetreAvecListe()
    {
        modele.setHorizontalHeaderLabels({QString()});
        liste->setGeometry(10, 10, 200, 150);
        vue->setModel(&modele);
        vue->setGeometry(10, 10, 150, 80);
        bouton->move(10, 100);
        ensurePolished();
        bouton->ensurePolished();
        bouton->adjustSize();
    }

    QStandardItemModel modele;
    WidgetListeEditable * const liste = new WidgetListeEditable(this);
    QTreeView * const vue = new QTreeView(liste);
    QPushButton * const bouton = new QPushButton(liste);
    QLabel * const libelle = new QLabel(liste);
};

} // namespace

class tst_StyleGeneralGui : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void analyse_data();
    void analyse();
    void decision_data();
    void decision();
    void aucunAutreSelecteur();
    void ditPourquoiLaListeEstTransparente();

    void boutonFermeture_data();
    void boutonFermeture();
    void boutonAjoutOnglet_data();
    void boutonAjoutOnglet();
    void cadreDeListe();
    void policeDeListe();
    void boutonDeListe_data();
    void boutonDeListe();
    void enTeteDeListe();
    void vueDeListe();
    void horsDeListe();
    void dialogueAjoutLien();
    void listeDeroulante();
    void infobulle();
};

void tst_StyleGeneralGui::initTestCase()
{
    qApp->setStyleSheet(DonneFeuilleAppliquee());
}

void tst_StyleGeneralGui::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_StyleGeneralGui::cleanupTestCase()
{
    qApp->setStyleSheet(QString());
}

void tst_StyleGeneralGui::analyse_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("selecteurs");
    QTest::newRow("comments and blanks")
        << u"/* x {a:b} */ A /* y */ > B\n{ a : b; /* c:d; */ }"_s << QStringList{u"A > B"_s};
    QTest::newRow("two selectors") << u"B, A:focus { a: b }"_s << QStringList{u"A:focus"_s, u"B"_s};
    QTest::newRow("text outside a block") << u"A { a: b } B"_s << QStringList();
    QTest::newRow("no declaration") << u"A { a }"_s << QStringList();
}

void tst_StyleGeneralGui::analyse()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, selecteurs);
    Feuille const feuille = Analyse(texte);
    QCOMPARE(QStringList(feuille.keys()), selecteurs);
    for (auto const & declarations : feuille)
        QCOMPARE(EnLignes(declarations), QStringList{u"a: b"_s});
}

void tst_StyleGeneralGui::decision_data()
{
    QTest::addColumn<QStringList>("declarations");
    for (Decision const & decision : DonneDecisions())
        QTest::newRow(qPrintable(decision.selecteur)) << decision.declarations;
}

void tst_StyleGeneralGui::decision()
{
    QFETCH(QStringList, declarations);
    QString const selecteur = QString::fromUtf8(QTest::currentDataTag());
    QCOMPARE(EnLignes(Analyse(LisFeuille()).value(selecteur)), declarations);
}

void tst_StyleGeneralGui::aucunAutreSelecteur()
{
    QStringList attendus;
    for (Decision const & decision : DonneDecisions())
        attendus.append(decision.selecteur);
    attendus.sort();
    QCOMPARE(QStringList(Analyse(LisFeuille()).keys()), attendus);
}

void tst_StyleGeneralGui::ditPourquoiLaListeEstTransparente()
{
    // Whoever adds a rule to the list has to know what it breaks.
    static QRegularExpression const regle(u"/\\*([^*]*)\\*/\\s*QComboBoxListView\\s*\\{"_s);
    QString const raison = regle.match(LisFeuille()).captured(1).simplified();
    QVERIFY(raison.contains(u"Windows 11"_s));
    QVERIFY(raison.contains(u"shadow"_s));
    QVERIFY(raison.contains(u"transparency"_s));
}

void tst_StyleGeneralGui::boutonFermeture_data()
{
    QTest::addColumn<QVariant>("selectionnay");
    QTest::addColumn<bool>("survol");
    QTest::addColumn<QRgb>("couleur");
    QTest::newRow("transparent") << QVariant() << false << kFondTemoin;
    QTest::newRow("transparent on a tab that is not current")
        << QVariant(false) << false << kFondTemoin;
    QTest::newRow("hover") << QVariant() << true << 0xffdddddd;
    QTest::newRow("hover on the current tab") << QVariant(true) << true << 0xffdddddd;
    QTest::newRow("hover on a tab that is not current") << QVariant(false) << true << 0xffcccccc;
    QTest::newRow("the same as a text") << QVariant(u"false"_s) << true << 0xffcccccc;
}

void tst_StyleGeneralGui::boutonFermeture()
{
    QFETCH(QVariant, selectionnay);
    QFETCH(bool, survol);
    QFETCH(QRgb, couleur);
    FenetreTemoin fenetre;
    QToolButton bouton(&fenetre);
    bouton.setObjectName(u"boutonFermeture"_s);
    bouton.setGeometry(20, 20, 30, 24);
    bouton.setProperty("selectionnay", selectionnay);
    Survole(bouton, survol);
    for (QPoint const & place : {QPoint(0, 0), QPoint(15, 12), QPoint(29, 23)}) // no border
        QCOMPARE(fenetre.Pixel(bouton, place), couleur);
}

void tst_StyleGeneralGui::boutonAjoutOnglet_data()
{
    QTest::addColumn<bool>("survol");
    QTest::addColumn<bool>("presse");
    QTest::addColumn<QRgb>("couleur");
    QTest::newRow("hover") << true << false << 0xffd8d8d8;
    QTest::newRow("pressed") << false << true << 0xffcfcfcf;
    QTest::newRow("pressed under the mouse") << true << true << 0xffcfcfcf;
}

void tst_StyleGeneralGui::boutonAjoutOnglet()
{
    QFETCH(bool, survol);
    QFETCH(bool, presse);
    QFETCH(QRgb, couleur);
    FenetreTemoin fenetre;
    QPushButton bouton(&fenetre);
    bouton.setObjectName(u"boutonAjoutOnglet"_s);
    bouton.setGeometry(20, 20, 30, 24);
    Survole(bouton, survol);
    bouton.setDown(presse);
    for (QPoint const & place : {QPoint(1, 1), QPoint(15, 12), QPoint(28, 22)}) // no border
        QCOMPARE(fenetre.Pixel(bouton, place), couleur);
    for (QPoint const & marge : {QPoint(0, 12), QPoint(29, 12), QPoint(15, 0), QPoint(15, 23)})
        QCOMPARE(fenetre.Pixel(bouton, marge), kFondTemoin);
}

void tst_StyleGeneralGui::cadreDeListe()
{
    FenetreAvecListe fenetre;
    WidgetListeEditable const & liste = *fenetre.liste;
    QCOMPARE(liste.contentsRect(), liste.rect().adjusted(4, 4, -4, -4));
    // The margin, the border and the inside, from the left edge.
    QCOMPARE(fenetre.Pixel(liste, QPoint(2, 60)), kFondTemoin);
    QCOMPARE(fenetre.Pixel(liste, QPoint(3, 60)), kBordure);
    QCOMPARE(fenetre.Pixel(liste, QPoint(4, 60)), kFondTemoin);
    for (QPoint const & bord : {QPoint(196, 60), QPoint(60, 3), QPoint(60, 146)})
        QCOMPARE(fenetre.Pixel(liste, bord), kBordure);
    QVERIFY(fenetre.Pixel(liste, QPoint(3, 3)) != kBordure); // rounded
}

void tst_StyleGeneralGui::policeDeListe()
{
    FenetreAvecListe fenetre;
    QLabel dehors(&fenetre);
    QList<QWidget *> const widgets = {fenetre.libelle, fenetre.vue->header(), fenetre.liste,
                                      &dehors};
    for (QWidget * const widget : widgets)
        widget->ensurePolished();
    QCOMPARE(fenetre.libelle->font().pixelSize(), 17);
    QCOMPARE(fenetre.bouton->font().pixelSize(), 17);
    QCOMPARE(fenetre.vue->header()->font().pixelSize(), 17);
    QVERIFY(fenetre.liste->font().pixelSize() != 17);
    QVERIFY(dehors.font().pixelSize() != 17);
}

void tst_StyleGeneralGui::boutonDeListe_data()
{
    QTest::addColumn<bool>("focus");
    QTest::addColumn<bool>("actif");
    QTest::addColumn<QRgb>("fond");
    QTest::newRow("plain") << false << true << kBlanc;
    QTest::newRow("focus") << true << true << 0xffe6f1fc;
    QTest::newRow("disabled") << false << false << kBlanc;
}

void tst_StyleGeneralGui::boutonDeListe()
{
    QFETCH(bool, focus);
    QFETCH(bool, actif);
    QFETCH(QRgb, fond);
    FenetreAvecListe fenetre;
    QPushButton & bouton = *fenetre.bouton;
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    if (focus)
        bouton.setFocus();
    else
        fenetre.setFocus();
    bouton.setEnabled(actif);
    QCOMPARE(bouton.hasFocus(), focus);

    // 20 by 20 inside, and the border at the right.
    QCOMPARE(bouton.minimumSize(), QSize(21, 20));
    QCOMPARE(bouton.maximumSize(), QSize(21, 20));
    QCOMPARE(bouton.size(), QSize(21, 20));
    for (QPoint const & place : {QPoint(0, 0), QPoint(10, 10), QPoint(0, 19), QPoint(19, 19)})
        QCOMPARE(fenetre.Pixel(bouton, place), fond);
    for (int const y : {0, 10, 19})
        QCOMPARE(fenetre.Pixel(bouton, QPoint(20, y)), kBordure);
}

void tst_StyleGeneralGui::enTeteDeListe()
{
    FenetreAvecListe fenetre;
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    QWidget const & enTete = *fenetre.vue->header()->viewport();
    int const bas = enTete.height() - 1;
    QVERIFY(bas > 2);
    for (int const x : {0, 60, enTete.width() - 1}) {
        QCOMPARE(fenetre.Pixel(enTete, QPoint(x, bas)), kBordure);
        QVERIFY(fenetre.Pixel(enTete, QPoint(x, bas / 2)) != kBordure);
        QVERIFY(fenetre.Pixel(enTete, QPoint(x, 0)) != kBordure);
    }
}

void tst_StyleGeneralGui::vueDeListe()
{
    FenetreAvecListe fenetre;
    QTreeView & vue = *fenetre.vue;
    vue.setHeaderHidden(true);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    // Nothing around the rows but the line at the bottom.
    QCOMPARE(vue.viewport()->geometry(), vue.rect().adjusted(0, 0, 0, -1));
    for (int const x : {0, 75, 149}) {
        QCOMPARE(fenetre.Pixel(vue, QPoint(x, 79)), kSeparateur);
        QVERIFY(fenetre.Pixel(vue, QPoint(x, 78)) != kSeparateur);
    }
}

void tst_StyleGeneralGui::horsDeListe()
{
    FenetreTemoin fenetre;
    QPushButton bouton(&fenetre);
    QTreeView vue(&fenetre);
    bouton.ensurePolished();
    vue.ensurePolished();
    QVERIFY(bouton.maximumWidth() > 21);
    vue.setGeometry(0, 0, 100, 100);
    QVERIFY(vue.frameWidth() > 0);
}

void tst_StyleGeneralGui::dialogueAjoutLien()
{
    QPalette sombre;
    sombre.setColor(QPalette::Window, QColor::fromRgba(kFondTemoin));
    DDialogueAjoutLien dialogue;
    QDialog autre;
    for (QDialog * const fenetre : {static_cast<QDialog *>(&dialogue), &autre}) {
        fenetre->setPalette(sombre);
        fenetre->resize(60, 40);
    }
    QCOMPARE(dialogue.grab().toImage().pixel(30, 20), kBlanc);
    QCOMPARE(dialogue.grab().toImage().pixel(0, 0), kBlanc);
    QCOMPARE(autre.grab().toImage().pixel(30, 20), kFondTemoin);
}

void tst_StyleGeneralGui::listeDeroulante()
{
    QComboBox boite;
    QAbstractItemView & vue = *boite.view();
    QCOMPARE(vue.metaObject()->className(), "QComboBoxListView");
    vue.ensurePolished();
    // Nothing is filled, neither by the list nor by what its rows stand on.
    QCOMPARE(vue.palette().color(QPalette::Window).alpha(), 0);
    QVERIFY(!vue.autoFillBackground());
    QVERIFY(!vue.viewport()->autoFillBackground());
}

void tst_StyleGeneralGui::infobulle()
{
    QVERIFY(QToolTip::palette().color(QPalette::ToolTipBase).rgb() != kBlanc);
    FenetreTemoin fenetre;
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    QToolTip::showText(fenetre.mapToGlobal(QPoint(10, 10)), u" "_s, &fenetre);
    std::unique_ptr<QWidget> bulle;
    for (QWidget * const widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel"))
            bulle.reset(widget);
    }
    QVERIFY(bulle);
    QCOMPARE(bulle->grab().toImage().pixel(bulle->rect().center()), kBlanc);
}

QTEST_MAIN(tst_StyleGeneralGui)
#include "tst_StyleGeneralGui.moc"
