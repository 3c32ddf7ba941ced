// tests/controls/tst_DCheckBoxSignaux.cpp
#include "controls/EssaisBouton.h"

#include <functional>

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

class tst_DCheckBoxSignaux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ordre_data();
    void ordre();
    void aucunAuGel();
    void cliqueSansArgument();
    void suppressionParUnReceveur_data();
    void suppressionParUnReceveur();
    void suppressionDansUneBoucle_data();
    void suppressionDansUneBoucle();
    void suppressionDeLaFenetre();
    void valeurChangeeParUnReceveur();

private:
    void Ecoute(DCheckBox & controle);
    void Note(QString const & signal);

    QStringList mesSignaux;
    QString monSignalFatal;
    bool monAvecBoucle = false;
    QPointer<QWidget> maVictime;
};

namespace {

enum eGeste
{
    kClicCase,
    kClicLibelle,
    kEspace,
    kMetsCochay,
    kMetsPareil,
    kGel,
    kPerteDuFocus,
    kAnimation
};

void Fais(eGeste geste, DCheckBox & controle)
{
    switch (geste) {
    case kClicCase:
        return QTest::mouseClick(&Indicateur(controle), Qt::LeftButton, {}, QPoint(5, 7));
    case kClicLibelle:
        return RelacheSurLibelle(controle);
    case kEspace: {
        QPointer<QAbstractButton> const indicateur(&Indicateur(controle));
        QTest::keyPress(indicateur, Qt::Key_Space);
        if (indicateur)
            QTest::keyRelease(indicateur, Qt::Key_Space);
        return;
    }
    case kMetsCochay:
        return controle.MetsCochay(!controle.EstCochay());
    case kMetsPareil:
        return controle.MetsCochay(controle.EstCochay());
    case kGel: // while the box is down
        QTest::keyPress(&Indicateur(controle), Qt::Key_Space);
        return controle.MetsUtilisateurPeutChangerValeur(false);
    case kPerteDuFocus: { // while the box is down
        QTest::keyPress(&Indicateur(controle), Qt::Key_Space);
        QFocusEvent depart(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&Indicateur(controle), &depart);
        return;
    }
    case kAnimation:
        return Indicateur(controle).animateClick();
    }
}

void AjouteSuppressions()
{
    QTest::addColumn<eGeste>("geste");
    QTest::addColumn<QString>("signal");
    QStringList const clic{u"pressed"_s,  u"SignalCochageChangay"_s,
                           u"toggled"_s,  u"stateChanged"_s,
                           u"released"_s, u"clicked"_s};
    QStringList const valeur{u"stateChanged"_s, u"SignalCochageChangay"_s, u"toggled"_s};
    struct
    {
        eGeste geste;
        char const * nom;
        QStringList signaux;
    } const lignes[] = {
        {kClicCase, "click on the box", clic},
        {kEspace, "Space", clic},
        {kClicLibelle, "click on the label", valeur},
        {kMetsCochay, "MetsCochay", valeur},
        {kMetsPareil, "the same value", {u"SignalCochageChangay"_s, u"toggled"_s}},
        {kGel, "frozen while down", {u"released"_s}},
        {kPerteDuFocus, "focus lost while down", {u"released"_s}},
    };
    for (auto const & ligne : lignes)
        for (QString const & signal : ligne.signaux)
            QTest::addRow("%s, %s", ligne.nom, qPrintable(signal)) << ligne.geste << signal;
}

} // namespace

Q_DECLARE_METATYPE(eGeste)

void tst_DCheckBoxSignaux::cleanup()
{
    mesSignaux.clear();
    monSignalFatal.clear();
    monAvecBoucle = false;
    DetruisAttente();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DCheckBoxSignaux::Note(QString const & signal)
{
    mesSignaux << signal;
    if (signal.section(u' ', 0, 0) != monSignalFatal)
        return;
    if (monAvecBoucle)
        SupprimeDansUneBoucle(maVictime);
    else
        delete maVictime.data();
}

void tst_DCheckBoxSignaux::Ecoute(DCheckBox & controle)
{
    auto const mot = [](bool valeur) { return valeur ? u" true"_s : u" false"_s; };
    connect(&controle, &DCheckBox::SignalCochageChangay, this,
            [=, this](bool cochay) { Note(u"SignalCochageChangay"_s + mot(cochay)); });
    connect(&controle, &DCheckBox::stateChanged, this,
            [this](int etat) { Note(u"stateChanged %1"_s.arg(etat)); });
    connect(&controle, &DCheckBox::clicked, this,
            [=, this](bool cochay) { Note(u"clicked"_s + mot(cochay)); });
    connect(&controle, &DCheckBox::pressed, this, [this] { Note(u"pressed"_s); });
    connect(&controle, &DCheckBox::released, this, [this] { Note(u"released"_s); });
    connect(&controle, &DCheckBox::toggled, this,
            [=, this](bool cochay) { Note(u"toggled"_s + mot(cochay)); });
}

void tst_DCheckBoxSignaux::ordre_data()
{
    QTest::addColumn<eGeste>("geste");
    QTest::addColumn<bool>("avant");
    QTest::addColumn<QStringList>("signaux");
    QStringList const clic{u"pressed"_s,      u"SignalCochageChangay true"_s,
                           u"toggled true"_s, u"stateChanged 2"_s,
                           u"released"_s,     u"clicked true"_s};
    QStringList const clicCochee{u"pressed"_s,       u"SignalCochageChangay false"_s,
                                 u"toggled false"_s, u"stateChanged 0"_s,
                                 u"released"_s,      u"clicked false"_s};
    QStringList const valeur{u"stateChanged 2"_s, u"SignalCochageChangay true"_s,
                             u"toggled true"_s};
    QStringList const valeurCochee{u"stateChanged 0"_s, u"SignalCochageChangay false"_s,
                                   u"toggled false"_s};
    QTest::newRow("click on the box") << kClicCase << false << clic;
    QTest::newRow("click on the checked box") << kClicCase << true << clicCochee;
    QTest::newRow("Space") << kEspace << false << clic;
    QTest::newRow("Space on checked") << kEspace << true << clicCochee;
    // Deliberate: the label is not a part of the button, it sets the value.
    QTest::newRow("click on the label") << kClicLibelle << false << valeur;
    QTest::newRow("click on the label of checked") << kClicLibelle << true << valeurCochee;
    QTest::newRow("MetsCochay") << kMetsCochay << false << valeur;
    QTest::newRow("MetsCochay on checked") << kMetsCochay << true << valeurCochee;
    QTest::newRow("MetsCochay of the same value")
        << kMetsPareil << false << QStringList{u"SignalCochageChangay false"_s, u"toggled false"_s};
    QTest::newRow("MetsCochay of the same value on checked")
        << kMetsPareil << true << QStringList{u"SignalCochageChangay true"_s, u"toggled true"_s};
}

void tst_DCheckBoxSignaux::ordre()
{
    QFETCH(eGeste, geste);
    QFETCH(bool, avant);
    QFETCH(QStringList, signaux);
    DCheckBox controle(u"abc"_s, nullptr, avant);
    controle.show();
    Ecoute(controle);
    Fais(geste, controle);
    QCOMPARE(mesSignaux, signaux);
}

void tst_DCheckBoxSignaux::aucunAuGel()
{
    DCheckBox controle(u"abc"_s, nullptr, true);
    controle.show();
    Ecoute(controle);
    controle.MetsUtilisateurPeutChangerValeur(false);
    for (eGeste const geste : {kClicLibelle, kEspace})
        Fais(geste, controle);
    controle.MetsUtilisateurPeutChangerValeur(true);
    controle.setEnabled(false);
    Fais(kClicLibelle, controle);
    QCOMPARE(mesSignaux, QStringList());
}

// As the signal of any Qt button, to connections by name.
void tst_DCheckBoxSignaux::cliqueSansArgument()
{
    QVERIFY(DCheckBox::staticMetaObject.indexOfSignal("clicked()") >= 0);
    QVERIFY(DCheckBox::staticMetaObject.indexOfSignal("clicked(bool)") >= 0);
}

void tst_DCheckBoxSignaux::suppressionParUnReceveur_data()
{
    AjouteSuppressions();
    QTest::newRow("animated click, pressed") << kAnimation << u"pressed"_s;
}

void tst_DCheckBoxSignaux::suppressionParUnReceveur()
{
    QFETCH(eGeste, geste);
    QFETCH(QString, signal);
    auto * const controle = new DCheckBox(u"abc"_s);
    maVictime = controle;
    QPointer<QAbstractButton> const indicateur(&Indicateur(*controle));
    controle->show();
    Ecoute(*controle);
    monSignalFatal = signal;
    Fais(geste, *controle);
    QVERIFY(!maVictime);
    QCOMPARE(mesSignaux.last().section(u' ', 0, 0), signal);
    QCOMPARE(mesSignaux.filter(signal).size(), 1);
    if (geste != kMetsPareil)
        QVERIFY(indicateur); // behind the signal Qt still uses it
    DetruisAttente();
    QVERIFY(!indicateur);
}

void tst_DCheckBoxSignaux::suppressionDansUneBoucle_data()
{
    AjouteSuppressions();
}

void tst_DCheckBoxSignaux::suppressionDansUneBoucle()
{
    QFETCH(eGeste, geste);
    QFETCH(QString, signal);
    auto * const fenetre = new QWidget;
    maVictime = fenetre;
    auto * const controle = new DCheckBox(u"abc"_s, fenetre);
    QPointer<QAbstractButton> const indicateur(&Indicateur(*controle));
    fenetre->show();
    Ecoute(*controle);
    monSignalFatal = signal;
    monAvecBoucle = true;
    Fais(geste, *controle);
    QVERIFY(!maVictime);
    QCOMPARE(mesSignaux.last().section(u' ', 0, 0), signal);
    DetruisAttente();
    QVERIFY(!indicateur);
}

void tst_DCheckBoxSignaux::suppressionDeLaFenetre()
{
    auto * const fenetre = new QWidget;
    maVictime = fenetre;
    auto * const controle = new DCheckBox(u"abc"_s, fenetre);
    fenetre->show();
    Ecoute(*controle);
    monSignalFatal = u"toggled"_s;
    Fais(kClicCase, *controle);
    QVERIFY(!maVictime);
    QCOMPARE(mesSignaux.last(), u"toggled true"_s);
}

void tst_DCheckBoxSignaux::valeurChangeeParUnReceveur()
{
    DCheckBox controle(u"abc"_s);
    QSignalSpy const bascules(&controle, &DCheckBox::toggled);
    connect(&controle, &DCheckBox::SignalCochageChangay, &controle, [&controle](bool cochay) {
        if (cochay)
            controle.MetsCochay(false);
    });
    controle.MetsCochay(true);
    QVERIFY(!controle.EstCochay());
    QCOMPARE(bascules, (QList<QVariantList>{{false}, {true}}));
}

QTEST_MAIN(tst_DCheckBoxSignaux)
#include "tst_DCheckBoxSignaux.moc"
