#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QHeaderView>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Labels, resize modes and sorting.

class tst_WidgetListeEditableEntete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void actualise_data();
    void actualise();
    void libelles();
    void modes();
    void modesHorsColonnes();
    void enteteDeLHote_data();
    void enteteDeLHote();
    void sansEntete();
    void redefinition();
    void trier_data();
    void trier();
    void clicSansTri();
    void clicAvecTri();
    void triPendantLEdition_data();
    void triPendantLEdition();
};

namespace {

using Action = std::function<void(ListeEssai &)>;
using Libelles = sdd::ListeT<UniChaine>;
using Modes = sdd::ListeT<QHeaderView::ResizeMode>;

Libelles CreeLibelles(QStringList const & textes)
{
    Libelles libelles;
    for (QString const & texte : textes)
        libelles.AjouteFin(texte);
    return libelles;
}

void CliqueSection(ListeEssai & liste, int colonne)
{
    QHeaderView & entete = *liste.DonneEntete();
    int const x = entete.sectionViewportPosition(colonne) + entete.sectionSize(colonne) / 2;
    QTest::mouseClick(entete.viewport(), Qt::LeftButton, {}, QPoint(x, entete.height() / 2));
}

} // namespace

Q_DECLARE_METATYPE(Action)

void tst_WidgetListeEditableEntete::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableEntete::actualise_data()
{
    QTest::addColumn<QStringList>("libelles");
    QTest::addColumn<bool>("trier");
    QTest::newRow("labels, no sorting") << QStringList{u"Mot"_s, u"Sens"_s} << false;
    QTest::newRow("labels, sorting") << QStringList{u"Mot"_s, u"Sens"_s} << true;
    QTest::newRow("no labels, no sorting") << QStringList{} << false;
    QTest::newRow("no labels, sorting") << QStringList{} << true;
    QTest::newRow("one label of two") << QStringList{u"Mot"_s} << false;
    QTest::newRow("an empty label") << QStringList{QString()} << false;
}

void tst_WidgetListeEditableEntete::actualise()
{
    QFETCH(QStringList, libelles);
    QFETCH(bool, trier);
    ListeEssai liste(2);
    liste.ActualiseEntete(CreeLibelles(libelles), Modes(), trier);
    QHeaderView const & entete = *liste.DonneEntete();
    QCOMPARE(entete.isHidden(), libelles.isEmpty());
    QCOMPARE(liste.PreteVue()->isSortingEnabled(), trier);
    // With and without sorting.
    QVERIFY(entete.isSortIndicatorShown());
    QVERIFY(entete.sectionsClickable());
    for (int colonne = 0; colonne < libelles.size(); ++colonne)
        QCOMPARE(liste.PreteModele()->headerData(colonne, Qt::Horizontal).toString(),
                 libelles[colonne]);
    liste.ActualiseEntete(CreeLibelles({u"x"_s}), Modes(), trier);
    QVERIFY(!entete.isHidden());
}

void tst_WidgetListeEditableEntete::libelles()
{
    ListeEssai liste(1);
    liste.ActualiseEntete(CreeLibelles({u"a"_s, u"b"_s, u"c"_s}), Modes(), false);
    QCOMPARE(liste.PreteModele()->columnCount(), 3); // one for each label
}

void tst_WidgetListeEditableEntete::modes()
{
    ListeEssai liste(3);
    liste.ActualiseEntete(CreeLibelles({u"a"_s}), {QHeaderView::Fixed, QHeaderView::Stretch},
                          false);
    QHeaderView const & entete = *liste.DonneEntete();
    QCOMPARE(entete.sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(entete.sectionResizeMode(1), QHeaderView::Stretch);
    QCOMPARE(entete.sectionResizeMode(2), QHeaderView::Interactive);
}

void tst_WidgetListeEditableEntete::modesHorsColonnes()
{
    ListeEssai liste(1);
    liste.ActualiseEntete(Libelles(), {QHeaderView::Fixed, QHeaderView::Stretch}, false);
    QCOMPARE(liste.DonneEntete()->sectionResizeMode(0), QHeaderView::Fixed);
    ListeEssai sansColonne(0);
    sansColonne.ActualiseEntete(Libelles(), {QHeaderView::Fixed}, true);
    QCOMPARE(sansColonne.DonneEntete()->count(), 0);
}

void tst_WidgetListeEditableEntete::enteteDeLHote_data()
{
    QTest::addColumn<bool>("trier");
    QTest::addColumn<bool>("avecLibelles");
    QTest::newRow("sorting") << true << true;
    QTest::newRow("no sorting") << false << true;
    QTest::newRow("no labels") << false << false;
}

void tst_WidgetListeEditableEntete::enteteDeLHote()
{
    QFETCH(bool, trier);
    QFETCH(bool, avecLibelles);
    ListeEssai liste(2);
    QPointer<QHeaderView> const ancien = liste.DonneEntete();
    auto * const entete = new QHeaderView(Qt::Horizontal);
    entete->setDefaultAlignment(Qt::AlignCenter);
    liste.MetsEntete(entete, CreeLibelles(avecLibelles ? QStringList{u"a"_s} : QStringList{}),
                     {QHeaderView::Fixed}, trier);
    QCOMPARE(liste.DonneEntete(), entete);
    QVERIFY(!ancien);
    QCOMPARE(entete->isHidden(), !avecLibelles);
    QVERIFY(entete->isSortIndicatorShown());
    QVERIFY(entete->sectionsClickable());
    QCOMPARE(entete->defaultAlignment(), Qt::AlignCenter); // the host's
    QCOMPARE(entete->sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(liste.PreteVue()->isSortingEnabled(), trier);
}

void tst_WidgetListeEditableEntete::sansEntete()
{
    ListeEssai liste(2);
    QHeaderView const * const entete = liste.DonneEntete();
    liste.MetsEntete(nullptr, CreeLibelles({u"a"_s, u"b"_s}), Modes(), true);
    QCOMPARE(liste.DonneEntete(), entete);
    QVERIFY(entete->isHidden()); // whatever the labels
    QVERIFY(liste.PreteVue()->isSortingEnabled());
    QCOMPARE(liste.PreteModele()->headerData(1, Qt::Horizontal).toString(), u"b"_s);
}

void tst_WidgetListeEditableEntete::redefinition()
{
    class Liste : public ListeEssai
    {
    public:
        void ActualiseEntete(Libelles const & libelles, Modes const & modes, bool trier) override
        {
            appels++;
            ListeEssai::ActualiseEntete(libelles, modes, trier);
        }
        int appels = 0;
    };
    Liste liste;
    liste.MetsEntete(nullptr, Libelles(), Modes(), false);
    QCOMPARE(liste.appels, 1);
}

void tst_WidgetListeEditableEntete::trier_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<int>("indicateur");
    QTest::newRow("first column") << 0 << 0;
    QTest::newRow("last column") << 1 << 1;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("beyond the columns") << 2 << 0;
}

void tst_WidgetListeEditableEntete::trier()
{
    QFETCH(int, colonne);
    QFETCH(int, indicateur);
    ListeEssai liste(2);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"1"_s}));
    liste.AjouteElement(CreeValeurs({u"b"_s, u"2"_s}));
    bool const existe = colonne == indicateur;
    Qt::SortOrder const ordre = existe ? Qt::DescendingOrder : Qt::AscendingOrder;
    liste.Trier(colonne, Qt::DescendingOrder);
    QCOMPARE(liste.DonneEntete()->sortIndicatorSection(), indicateur);
    QCOMPARE(liste.DonneEntete()->sortIndicatorOrder(), ordre);
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"b"_s})); // sorting is off
    liste.ActualiseEntete(Libelles(), Modes(), true);
    liste.Trier(colonne, Qt::DescendingOrder);
    QCOMPARE(liste.Textes(),
             existe ? (QStringList{u"b"_s, u"a"_s}) : (QStringList{u"a"_s, u"b"_s}));
}

void tst_WidgetListeEditableEntete::clicSansTri()
{
    ListeEssai liste;
    liste.Remplis({u"b"_s, u"a"_s});
    liste.ActualiseEntete(CreeLibelles({u"Mot"_s}), Modes(), false);
    QVERIFY(liste.Montre());
    CliqueSection(liste, 0);
    QCOMPARE(liste.DonneEntete()->sortIndicatorOrder(), Qt::DescendingOrder);
    QCOMPARE(liste.Textes(), (QStringList{u"b"_s, u"a"_s}));
}

void tst_WidgetListeEditableEntete::clicAvecTri()
{
    ListeEssai liste;
    liste.Remplis({u"b"_s, u"a"_s, u"c"_s});
    liste.ActualiseEntete(CreeLibelles({u"Mot"_s}), Modes(), true);
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    QVERIFY(liste.Montre());
    CliqueSection(liste, 0);
    QCOMPARE(liste.Textes(), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
}

void tst_WidgetListeEditableEntete::triPendantLEdition_data()
{
    QTest::addColumn<Action>("tri");
    QTest::addColumn<bool>("ferme");
    QTest::addColumn<QStringList>("textes");
    QTest::addColumn<QStringList>("sens");
    // The header gives the focus to the view: the text is in its cell when the rows are sorted.
    QTest::newRow("click") << Action([](ListeEssai & l) { CliqueSection(l, 0); }) << true
                           << QStringList{u"x"_s, u"c"_s, u"b"_s}
                           << QStringList{u"a"_s, u"c"_s, u"b"_s};
    QTest::newRow("by the host") << Action([](ListeEssai & l) { l.Trier(0, Qt::DescendingOrder); })
                                 << false << QStringList{u"c"_s, u"b"_s, u"x"_s}
                                 << QStringList{u"c"_s, u"b"_s, u"a"_s};
}

// The editor goes with its row, and commits there.
void tst_WidgetListeEditableEntete::triPendantLEdition()
{
    QFETCH(Action, tri);
    QFETCH(bool, ferme);
    QFETCH(QStringList, textes);
    QFETCH(QStringList, sens);
    ListeEssai liste(2);
    liste.ActualiseEntete(CreeLibelles({u"Mot"_s, u"Sens"_s}), Modes(), true);
    QVERIFY(liste.Montre());
    for (QString const & texte : {u"a"_s, u"b"_s, u"c"_s})
        liste.AjouteElement(CreeValeurs({texte, texte}));
    liste.DoubleCliqueCellule(0);
    liste.Tape(u"x"_s);
    tri(liste);
    QCOMPARE(liste.Textes(1), sens);
    QCOMPARE(liste.NombreEditeurs(), ferme ? 0 : 1);
    if (!ferme) {
        QCOMPARE(liste.CelluleEditee(), liste.Index(2));
        QCOMPARE(liste.Editeur()->text(), u"x"_s);
        liste.Touche(Qt::Key_Return);
    }
    QTRY_COMPARE(liste.Textes(), textes);
    VideLaFile();
    QCOMPARE(liste.Textes(1), sens);
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{static_cast<int>(sens.indexOf(u"a"_s))});
    QCOMPARE(liste.NombreEditeurs(), 0);
}

QTEST_MAIN(tst_WidgetListeEditableEntete)
#include "tst_WidgetListeEditableEntete.moc"
