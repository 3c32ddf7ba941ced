// tests/galerie/tst_SurlignageOccurrences.cpp
#include "SurlignageOccurrences.h"

#include "FenetreRecherche.h"

#include <QPainter>
#include <QScrollBar>

#include <cmath>

using namespace Qt::StringLiterals;

class tst_SurlignageOccurrences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void visiblesSeulement_data() { AjouteEditeurs(); }
    void visiblesSeulement();
    void defilement_data() { AjouteEditeurs(); }
    void defilement();
    void redimensionnement_data() { AjouteEditeurs(); }
    void redimensionnement();
    void ligneDefileeDeCote();
    void selectionsDeLApplication_data() { AjouteEditeurs(); }
    void selectionsDeLApplication();
    void selectionsRemplacees_data() { AjouteEditeurs(); }
    void selectionsRemplacees();
    void deuxDansUnEditeur_data();
    void deuxDansUnEditeur();
    void suitLeTexte();
    void palette_data();
    void palette();
    void themeChangeay_data();
    void themeChangeay();
    void lisible_data();
    void lisible();
    void documentMort_data() { AjouteEditeurs(); }
    void documentMort();
    void detruit();
    void editeurDetruit();

private:
    static constexpr int kLignes = 500;

    void Prepare(bool riche, QString const & texte);
    void PrepareLong(bool riche) { Prepare(riche, u"mot\n"_s.repeated(kLignes)); }
    void Montre();
    QList<int> DonneDebuts() const;
    bool SurligneCeQuiSeVoit() const;

    std::unique_ptr<QAbstractScrollArea> monWidget;
    std::unique_ptr<EditeurCherchable> monEditeur;
    std::unique_ptr<SurlignageOccurrences> monSurlignage;
};

void tst_SurlignageOccurrences::cleanup()
{
    monSurlignage.reset();
    monEditeur.reset();
    monWidget.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_SurlignageOccurrences::Prepare(bool riche, QString const & texte)
{
    monEditeur = CreeEditeur(riche, monWidget);
    monEditeur->PreteDocument()->setPlainText(texte);
    monEditeur->MetsCurseur(QTextCursor(monEditeur->PreteDocument()));
    monSurlignage = std::make_unique<SurlignageOccurrences>(*monEditeur);
    monWidget->resize(300, 200);
    monWidget->show();
    QVERIFY(QTest::qWaitForWindowExposed(monWidget.get()));
}

void tst_SurlignageOccurrences::Montre()
{
    monSurlignage->Montre(
        OccurrencesTexte(monEditeur->PreteDocument()->toPlainText(), QRegularExpression(u"mot"_s)));
}

QList<int> tst_SurlignageOccurrences::DonneDebuts() const
{
    QList<int> debuts;
    for (QTextEdit::ExtraSelection const & selection : monEditeur->DonneSelections()) {
        if (!selection.cursor.isNull() && selection.cursor.hasSelection())
            debuts += selection.cursor.selectionStart();
    }
    return debuts;
}

bool tst_SurlignageOccurrences::SurligneCeQuiSeVoit() const
{
    OccurrencesTexte::Plage const visible = monEditeur->DonnePlageVisible();
    QList<int> debuts;
    for (int debut = (visible.debut + 3) / 4 * 4; debut < visible.fin; debut += 4)
        debuts += debut;
    return !debuts.isEmpty() && DonneDebuts() == debuts;
}

void tst_SurlignageOccurrences::visiblesSeulement()
{
    QFETCH(bool, riche);
    PrepareLong(riche);
    Montre();
    QTRY_VERIFY(SurligneCeQuiSeVoit());
    QCOMPARE(DonneDebuts().first(), 0);
    QVERIFY(DonneDebuts().size() < kLignes / 4);
    monSurlignage->Retire();
    QVERIFY(DonneDebuts().isEmpty());
}

void tst_SurlignageOccurrences::defilement()
{
    QFETCH(bool, riche);
    PrepareLong(riche);
    Montre();
    QScrollBar & barre = *monWidget->verticalScrollBar();
    QTRY_VERIFY(barre.maximum() > 0);
    barre.setValue(barre.maximum() / 2);
    QTRY_VERIFY(SurligneCeQuiSeVoit());
    QVERIFY(DonneDebuts().first() > 0);
    barre.setValue(barre.maximum());
    QTRY_COMPARE(DonneDebuts().last(), 4 * (kLignes - 1));
}

void tst_SurlignageOccurrences::redimensionnement()
{
    QFETCH(bool, riche);
    PrepareLong(riche);
    Montre();
    qsizetype const avant = DonneDebuts().size();
    monWidget->resize(300, 500);
    QTRY_VERIFY(DonneDebuts().size() > avant);
    QTRY_VERIFY(SurligneCeQuiSeVoit());
}

void tst_SurlignageOccurrences::ligneDefileeDeCote()
{
    Prepare(false, u"mot "_s + u"x"_s.repeated(2000));
    static_cast<QPlainTextEdit &>(*monWidget).setLineWrapMode(QPlainTextEdit::NoWrap);
    QScrollBar & barre = *monWidget->horizontalScrollBar();
    QTRY_VERIFY(barre.maximum() > 0);
    barre.setValue(barre.maximum());
    Montre();
    QCOMPARE(DonneDebuts(), QList<int>{0});
}

void tst_SurlignageOccurrences::selectionsDeLApplication()
{
    QFETCH(bool, riche);
    Prepare(riche, u"mot mot"_s);
    QTextEdit::ExtraSelection sienne;
    sienne.cursor = QTextCursor(monEditeur->PreteDocument());
    sienne.format.setProperty(QTextFormat::FullWidthSelection, true);
    monEditeur->MetsSelections({sienne});
    Montre();
    QCOMPARE(monEditeur->DonneSelections().size(), 3);
    QVERIFY(monEditeur->DonneSelections().first().format == sienne.format);
    Montre();
    QCOMPARE(monEditeur->DonneSelections().size(), 3);
    monSurlignage->Retire();
    QCOMPARE(monEditeur->DonneSelections().size(), 1);
    QVERIFY(monEditeur->DonneSelections().first().format == sienne.format);
}

// An application that sets its own knows nothing of these.
void tst_SurlignageOccurrences::selectionsRemplacees()
{
    QFETCH(bool, riche);
    Prepare(riche, u"mot mot"_s);
    Montre();
    QTextEdit::ExtraSelection sienne;
    sienne.cursor = QTextCursor(monEditeur->PreteDocument());
    sienne.format.setProperty(QTextFormat::FullWidthSelection, true);
    sienne.format.setBackground(Qt::red);
    monEditeur->MetsSelections({sienne});
    QTRY_COMPARE(monEditeur->DonneSelections().size(), 3);
    QVERIFY(monEditeur->DonneSelections().first().format == sienne.format);
}

void tst_SurlignageOccurrences::deuxDansUnEditeur_data()
{
    QTest::addColumn<bool>("premierDabord");
    QTest::newRow("the first ceases first") << true;
    QTest::newRow("the last ceases first") << false;
}

void tst_SurlignageOccurrences::deuxDansUnEditeur()
{
    QFETCH(bool, premierDabord);
    Prepare(true, u"mot mot un"_s);
    QPalette const avant = monWidget->palette();
    Montre();
    auto autre = std::make_unique<SurlignageOccurrences>(*monEditeur);
    autre->Montre(OccurrencesTexte(u"mot mot un"_s, QRegularExpression(u"un"_s)));
    monWidget->repaint();
    QCOMPARE(DonneDebuts(), QList<int>{8});
    if (premierDabord) {
        monSurlignage.reset();
        QCOMPARE(DonneDebuts(), QList<int>{8});
        QVERIFY(monWidget->palette() != avant);
    }
    autre.reset();
    QVERIFY(DonneDebuts().isEmpty());
    QCOMPARE(monWidget->palette(), avant);
    if (!premierDabord)
        Montre(); // the other one is not asked any more
    QCOMPARE(DonneDebuts().size(), premierDabord ? 0 : 2);
}

void tst_SurlignageOccurrences::suitLeTexte()
{
    Prepare(true, u"mot mot"_s);
    Montre();
    QTextCursor(monEditeur->PreteDocument()).insertText(u"un "_s);
    QCOMPARE(DonneDebuts(), (QList<int>{3, 7}));
    monWidget->resize(400, 300); // paints, with matches that are out of date
    QCoreApplication::processEvents();
    QCOMPARE(DonneDebuts(), (QList<int>{3, 7}));
}

void tst_SurlignageOccurrences::palette_data()
{
    QTest::addColumn<bool>("propre");
    QTest::newRow("of the application") << false;
    QTest::newRow("of its own") << true;
}

void tst_SurlignageOccurrences::palette()
{
    QFETCH(bool, propre);
    Prepare(true, u"mot"_s);
    if (propre) {
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::black);
        monWidget->setPalette(palette);
    }
    QPalette const avant = monWidget->palette();
    Montre();
    Montre();
    QPalette const pendant = monWidget->palette();
    QVERIFY(pendant.color(QPalette::Inactive, QPalette::Highlight) !=
            avant.color(QPalette::Inactive, QPalette::Highlight));
    QCOMPARE(pendant.color(QPalette::Active, QPalette::Highlight),
             avant.color(QPalette::Active, QPalette::Highlight));
    QCOMPARE(pendant.color(QPalette::Base), avant.color(QPalette::Base));
    monSurlignage->Retire();
    QCOMPARE(monWidget->palette(), avant);
    QCOMPARE(monWidget->testAttribute(Qt::WA_SetPalette), propre);
}

void tst_SurlignageOccurrences::themeChangeay_data()
{
    QTest::addColumn<bool>("propre");
    QTest::addColumn<bool>("deLEditeur");
    QTest::newRow("none of its own, the application's changes") << false << false;
    QTest::newRow("one of its own, the application's changes") << true << false;
    QTest::newRow("none of its own, then given one") << false << true;
    QTest::newRow("one of its own, then given another") << true << true;
}

// What comes while matches are shown stays.
void tst_SurlignageOccurrences::themeChangeay()
{
    QFETCH(bool, propre);
    QFETCH(bool, deLEditeur);
    Prepare(true, u"mot"_s);
    QPalette const application = QApplication::palette();
    auto const rends = qScopeGuard([&] { QApplication::setPalette(application); });
    if (propre) {
        QPalette palette;
        palette.setColor(QPalette::Text, Qt::red);
        monWidget->setPalette(palette);
    }
    Montre();
    QPalette sombre = deLEditeur ? monWidget->palette() : application;
    sombre.setColor(QPalette::Base, Qt::black);
    if (!deLEditeur)
        sombre.setColor(QPalette::Inactive, QPalette::Highlight, Qt::blue);
    deLEditeur ? monWidget->setPalette(sombre) : QApplication::setPalette(sombre);
    QColor const courante = monWidget->palette().color(QPalette::Inactive, QPalette::Highlight);
    QVERIFY(courante != sombre.color(QPalette::Inactive, QPalette::Highlight) || deLEditeur);
    monSurlignage->Retire();
    QPalette const apres = monWidget->palette();
    QCOMPARE(apres.color(QPalette::Base), QColor(Qt::black));
    QCOMPARE(apres.color(QPalette::Inactive, QPalette::Highlight),
             QApplication::palette().color(QPalette::Inactive, QPalette::Highlight));
    QCOMPARE(apres.color(QPalette::Inactive, QPalette::HighlightedText),
             QApplication::palette().color(QPalette::Inactive, QPalette::HighlightedText));
    QCOMPARE(apres.color(QPalette::Text) == QColor(Qt::red), propre);
    QCOMPARE(monWidget->testAttribute(Qt::WA_SetPalette), propre || deLEditeur);
    QVERIFY(!apres.isBrushSet(QPalette::Inactive, QPalette::Highlight));
}

namespace {

// As the Web Content Accessibility Guidelines define it, from 1 to 21.
double Contraste(QColor const & a, QColor const & b)
{
    auto const luminance = [](QColor const & couleur) {
        auto const lineaire = [](double canal) {
            return canal <= 0.04045 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
               0.0722 * lineaire(couleur.blueF());
    };
    auto const [sombre, clair] = std::minmax({luminance(a), luminance(b)});
    return (clair + 0.05) / (sombre + 0.05);
}

QColor Pose(QColor const & dessus, QColor const & dessous)
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(dessous);
    QPainter(&image).fillRect(0, 0, 1, 1, dessus);
    return image.pixelColor(0, 0);
}

} // namespace

void tst_SurlignageOccurrences::lisible_data()
{
    QTest::addColumn<QColor>("fond");
    QTest::addColumn<QColor>("texte");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(30, 30, 30) << QColor(230, 230, 230);
}

void tst_SurlignageOccurrences::lisible()
{
    QFETCH(QColor, fond);
    QFETCH(QColor, texte);
    constexpr double kContrasteVoulu = 4.5; // of normal text
    Prepare(true, u"mot"_s);
    Montre();
    QColor const surlignage = monEditeur->DonneSelections().first().format.background().color();
    QColor const affichay = Pose(surlignage, fond);
    QVERIFY(affichay != fond);
    QVERIFY2(Contraste(affichay, texte) >= kContrasteVoulu,
             qPrintable(QString::number(Contraste(affichay, texte))));
    QPalette const palette = monWidget->palette();
    QColor const courante = palette.color(QPalette::Inactive, QPalette::Highlight);
    QVERIFY(Contraste(courante, palette.color(QPalette::Inactive, QPalette::HighlightedText)) >=
            kContrasteVoulu);
    QVERIFY(courante != affichay);
}

void tst_SurlignageOccurrences::documentMort()
{
    QFETCH(bool, riche);
    Prepare(riche, u"mot mot"_s);
    Montre();
    auto * const document = new QTextDocument(u"un mot"_s, monWidget.get());
    if (riche) {
        static_cast<QTextEdit &>(*monWidget).setDocument(document);
    } else {
        document->setDocumentLayout(new QPlainTextDocumentLayout(document));
        static_cast<QPlainTextEdit &>(*monWidget).setDocument(document);
    }
    monWidget->repaint();
    Montre();
    QCOMPARE(DonneDebuts(), QList<int>{3});
    monSurlignage->Retire();
    QVERIFY(DonneDebuts().isEmpty());
    monWidget->repaint();
}

void tst_SurlignageOccurrences::detruit()
{
    Prepare(true, u"mot"_s);
    Montre();
    monSurlignage.reset();
    QVERIFY(monEditeur->DonneSelections().isEmpty());
    monWidget->repaint();
}

void tst_SurlignageOccurrences::editeurDetruit()
{
    Prepare(true, u"mot"_s);
    Montre();
    monWidget.reset();
    monSurlignage->Montre({});
    monSurlignage->Retire();
    QVERIFY(monEditeur->PreteWidget() == nullptr);
    QVERIFY(monEditeur->PreteDocument() == nullptr);
}

QTEST_MAIN(tst_SurlignageOccurrences)
#include "tst_SurlignageOccurrences.moc"
