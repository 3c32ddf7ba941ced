#include "ApercuFenetre.h"
#include "ThemeGalerie.h"

#include "galerie/EssaisImport.h"

#include "foundation/ThemesQt.h"
#include "navigation/DFilAriane.h"
#include "navigation/ElementFilAriane.h"

using namespace Qt::StringLiterals;

class tst_PageAssistant : public QObject, private EssaisImport
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup();

    void icones();
    void auDepart();
    void apercu();
    void filSuit();
    void filApresAbandon();
    void filApresAbandonEnLisant();
    void unSeulAssistant();
    void listes();
    void retrait();
    void lisibleEnThemeSombre();

private:
    QStringList Etats() const;
    /// The least and the most lightness, from 0 to 255, that one sees in `zone` of the widget.
    std::pair<int, int> DonneClartes(QWidget const & widget, QRect const & zone) const;
};

void tst_PageAssistant::cleanup()
{
    Nettoie();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// "fait", "en cours" or "à venir", as a screen reader says it, for each marker whose look agrees.
QStringList tst_PageAssistant::Etats() const
{
    QStringList etats;
    for (int etape = 0; etape < 5; ++etape) {
        auto & fil = *maPage->findChild<DFilAriane *>();
        auto const * const texte = fil.PreteUnElement(etape)->findChild<QLabel *>();
        QString const etat = texte->accessibleDescription().section(u' ', 1);
        bool const actif = texte->objectName() == u"ArianeTexteActif"_s;
        etats.append(actif == (etat == u"en cours"_s) ? etat : u"?"_s);
    }
    return etats;
}

std::pair<int, int> tst_PageAssistant::DonneClartes(QWidget const & widget,
                                                    QRect const & zone) const
{
    QPoint const coin = widget.mapTo(&Assistant(), zone.topLeft());
    QImage const image = Assistant().grab(QRect(coin, zone.size())).toImage();
    std::pair<int, int> clartes{255, 0};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            int const clarte = image.pixelColor(x, y).lightness();
            clartes = {std::min(clartes.first, clarte), std::max(clartes.second, clarte)};
        }
    return clartes;
}

void tst_PageAssistant::icones()
{
    QList<QImage> images;
    for (QString const & nom : {u"Actif"_s, u"Affaire"_s, u"EnCours"_s, u"Fait"_s}) {
        QImage const image = QIcon(u":/Images/iconeAriane%1.svg"_s.arg(nom)).pixmap(32).toImage();
        QVERIFY2(!image.isNull(), qPrintable(nom));
        QVERIFY(!images.contains(image));
        images.append(image);
    }
}

void tst_PageAssistant::auDepart()
{
    QVERIFY(!maPage->PreteAssistant());
    QCOMPARE(Etats(), (QStringList{u"faite"_s, u"faite"_s, u"en cours"_s, u"à venir"_s,
                                   u"à venir"_s})); // as in the picture
    QVERIFY(NomsDesListes().isEmpty());
    QVERIFY(!maPage->findChild<QPushButton *>(u"retirerListe"_s)->isEnabled());
}

// A wizard that nobody sees, in its middle.
void tst_PageAssistant::apercu()
{
    auto const & modele = *maPage->findChild<AssistantImport *>();
    QVERIFY(!modele.isVisible());
    QCOMPARE(modele.DonneEtapeCourante(), static_cast<int>(kTri));
    QVERIFY(modele.findChild<QLabel *>(u"nombresTri"_s)->text().contains(u"8"_s));
    auto & apercu = *maPage->findChild<ApercuFenetre *>();
    QCOMPARE(apercu.size(), modele.size());
    QVERIFY(!apercu.accessibleName().isEmpty());
}

void tst_PageAssistant::filSuit()
{
    Ouvre();
    QStringList const aVenir(5, u"à venir"_s);
    QStringList attendus = aVenir;
    attendus[0] = u"en cours"_s;
    QCOMPARE(Etats(), attendus);
    Colle(u"chat\nété"_s);
    for (int etape = kFormat; etape <= kResume; ++etape) {
        AvanceJusqua(etape);
        attendus[etape - 1] = u"faite"_s;
        attendus[etape] = u"en cours"_s;
        QCOMPARE(Etats(), attendus);
    }
    Clique(Precedent());
    attendus[kResume] = u"à venir"_s;
    attendus[kVerification] = u"en cours"_s;
    QCOMPARE(Etats(), attendus);
    AvanceJusqua(kResume);
    Clique(Termine());
    QCOMPARE(Etats(), QStringList(5, u"faite"_s));
    Construis(); // anew, as for another language
    QCOMPARE(Etats(), QStringList(5, u"faite"_s));
}

void tst_PageAssistant::filApresAbandon()
{
    Importe(u"a"_s, u"chat"_s);
    Ouvre();
    Clique(Annule());
    QVERIFY(!maPage->PreteAssistant());
    QCOMPARE(Etats().value(kTri), u"en cours"_s); // the picture's again
}

// What was read when the wizard was closed moves nothing any more.
void tst_PageAssistant::filApresAbandonEnLisant()
{
    Ouvre();
    Champ<QLineEdit>("chemin").setText(Ecris(u"mots"_s, "chat"));
    Clique(Suivant());
    Clique(Annule());
    for (int tour = 0; tour < 5; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(Etats().value(kTri), u"en cours"_s);
    QCOMPARE(Etats().value(kFormat), u"faite"_s);
}

void tst_PageAssistant::unSeulAssistant()
{
    Ouvre();
    AssistantImport const * const assistant = maPage->PreteAssistant();
    maPage->findChild<QPushButton *>(u"importer"_s)->click();
    QCOMPARE(maPage->PreteAssistant(), assistant);
    Clique(Annule());
    Ouvre(); // begins anew
    QCOMPARE(Etape(), static_cast<int>(kSource));
    QVERIFY(Champ<QLineEdit>("chemin").text().isEmpty());
}

void tst_PageAssistant::listes()
{
    Importe(u"Faune"_s, u"chat\nété\nbateau"_s);
    Importe(u"Flore"_s, u"arbre"_s);
    QCOMPARE(NomsDesListes(), (QStringList{u"Faune"_s, u"Flore"_s}));
    QCOMPARE(Listes().model()->index(0, 1).data().toString(), u"3"_s);
    QCOMPARE(Listes().model()->index(0, 2).data().toString(), u"chat, été, bateau"_s);
    Construis();
    QCOMPARE(NomsDesListes(), (QStringList{u"Faune"_s, u"Flore"_s}));
}

void tst_PageAssistant::retrait()
{
    for (QString const & nom : {u"a"_s, u"b"_s, u"c"_s})
        MemoireImports::Ajoute({nom, {u"mot"_s}});
    Construis();
    auto & bouton = *maPage->findChild<QPushButton *>(u"retirerListe"_s);
    QVERIFY(!bouton.isEnabled());
    QTest::keyClick(&Listes(), Qt::Key_Delete); // nothing is chosen
    QCOMPARE(NomsDesListes().size(), 3);

    QTest::mouseClick(Listes().viewport(), Qt::LeftButton, {},
                      Listes().visualRect(Listes().model()->index(1, 0)).center());
    QVERIFY(bouton.isEnabled());
    Clique(bouton);
    QCOMPARE(NomsDesListes(), (QStringList{u"a"_s, u"c"_s}));
    QCOMPARE(Listes().currentIndex().row(), 1);
    QTest::keyClick(&Listes(), Qt::Key_Delete);
    QTest::keyClick(&Listes(), Qt::Key_Delete);
    QVERIFY(NomsDesListes().isEmpty());
    QVERIFY(MemoireImports::DonneListes().isEmpty());
    QVERIFY(!bouton.isEnabled());
}

// The window stays white: no text on it may be light, and no field dark.
void tst_PageAssistant::lisibleEnThemeSombre()
{
    Nettoie();
    ThemeGalerie theme(u"fusion"_s);
    auto const enClair = qScopeGuard([this, &theme] { // also when it fails
        Nettoie();
        theme.Reinitialise();
        theme.Applique();
        qApp->setStyleSheet(QString());
        QApplication::setStyle(u"fusion"_s); // the library's keeps a widget of its own
        ThemesQt::DetruisToi();
    });
    theme.Reinitialise();
    theme.Assombris();
    QVERIFY(theme.Applique());
    Construis();
    OuvreALEtape(kResume, u"chat\nété"_s);
    for (int etape = kResume; etape >= kSource; --etape) {
        int textes = 0;
        for (QWidget * const widget : Assistant().findChildren<QWidget *>()) {
            auto const * const etiquette = qobject_cast<QLabel *>(widget);
            if (!widget->isVisible() || (etiquette && etiquette->text().isEmpty()))
                continue;
            if (etiquette || qobject_cast<QCheckBox *>(widget) ||
                qobject_cast<QRadioButton *>(widget)) {
                constexpr int kCase = 20; // the box of a check box
                QRect const texte = widget->rect().adjusted(etiquette ? 0 : kCase, 0, 0, 0);
                auto const [sombre, clair] = DonneClartes(*widget, texte);
                QVERIFY2(clair > 240 && sombre < 140, qPrintable(widget->objectName()));
                ++textes;
            } else if (qobject_cast<QAbstractItemView *>(widget) ||
                       qobject_cast<QLineEdit *>(widget) || qobject_cast<QComboBox *>(widget) ||
                       qobject_cast<QPlainTextEdit *>(widget)) {
                QRect const coin(widget->rect().center() - QPoint(0, 3), QSize(3, 3));
                QVERIFY2(DonneClartes(*widget, coin).second > 200,
                         widget->metaObject()->className());
            }
        }
        QVERIFY(textes > 2);
        for (QPushButton const * const bouton : {&Annule(), &Precedent()})
            QVERIFY(DonneClartes(*bouton, QRect(4, 4, 3, 3)).first > 200);
        if (etape > kSource)
            Clique(Precedent());
    }
}

QTEST_MAIN(tst_PageAssistant)
#include "tst_PageAssistant.moc"
