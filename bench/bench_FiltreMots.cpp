// bench/bench_FiltreMots.cpp
//
// A letter that comes and goes at the end of a text by which 346,000 French words are filtered:
// those that begin as it, those that contain it, and these with a length, an initial and an accent
// asked for as well. Beside a QSortFilterProxyModel over a QStringListModel of the words as they
// are compared, so that both find the same. Then the same letter up to what a table shows: filter,
// order, model, layout and painting; and a key typed on the gallery's page, with the number of
// words. Then the reading of the words, once, beside what the peer needs for its models. Exits with
// 1 when a keystroke takes longer than the peer's or than half a frame, longer than a frame when it
// is painted, or when reading takes longer than 200 ms.
#include "FiltreMots.h"
#include "LectureTexte.h"
#include "ModeleMots.h"
#include "MotsFrancais.h"
#include "PageFiltres.h"

#include "controls/DTableView.h"
#include "search/DChampRecherche.h"

#include "Comparaison.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QTableView>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr double kImage = 16.7e6; // nanoseconds of a frame
constexpr double kLectureMax = 200e6;
constexpr int kFrappes = 2; // a letter more, a letter less
constexpr int kMotsVoulus = 300'000;
constexpr QSize kTaille(500, 600);
constexpr QSize kTaillePage(900, 700);
constexpr int kHauteurLigne = 24; // logical pixels

void Exige(bool condition, char const * quoi)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", quoi);
    std::exit(2);
}

FiltreMots::Criteres CreeCriteres(FiltreMots::eMode mode, QString const & texte)
{
    FiltreMots::Criteres criteres;
    criteres.textes.push_back({mode, texte});
    return criteres;
}

struct Pair
{
    explicit Pair(TableMots const & table)
    {
        QStringList cles;
        for (int i = 0; i < table.DonneNombre(); ++i)
            cles.append(QString::fromUtf8(table.DonneCle(i)));
        mots.setStringList(cles);
        mandataire.setSourceModel(&mots);
    }

    int Filtre(QString const & expression)
    {
        mandataire.setFilterRegularExpression(expression);
        return mandataire.rowCount();
    }

    QStringListModel mots;
    QSortFilterProxyModel mandataire;
};

template <typename Vue>
void Montre(Vue & vue, QAbstractItemModel & modele)
{
    vue.verticalHeader()->hide();
    vue.verticalHeader()->setDefaultSectionSize(kHauteurLigne);
    vue.setModel(&modele);
    vue.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    vue.resize(kTaille);
    vue.show();
    QCoreApplication::processEvents();
}

class Banc
{
public:
    explicit Banc(std::shared_ptr<TableMots const> table)
        : maTable(std::move(table))
        , monPair(*maTable)
    {
    }

    // `criteres` and `expression` ask for the same, but for what only we are asked as well.
    void MesureFiltre(char const * nom, FiltreMots::Criteres const & criteres,
                      QString const & debut, QString const & expression, bool memesMots = true)
    {
        FiltreMots filtre(maTable);
        FiltreMots::Criteres moins = criteres;
        moins.textes.back().texte.chop(1);
        Exige(!memesMots ||
                  static_cast<int>(filtre.Filtre(criteres).size()) == monPair.Filtre(expression),
              "the two find different words");
        auto const notre = [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i)
                Garde(filtre.Filtre(i % kFrappes == 0 ? moins : criteres));
        };
        auto const pair = [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i)
                Garde(monPair.Filtre(i % kFrappes == 0 ? debut : expression));
        };
        maComparaison.Mesure(nom, notre, pair, 1.0, kImage / 2);
    }

    void MesureAffichage(char const * nom, FiltreMots::Criteres const & criteres,
                         QString const & debut, QString const & expression)
    {
        FiltreMots filtre(maTable);
        FiltreMots::Criteres moins = criteres;
        moins.textes.back().texte.chop(1);
        ModeleMots modele;
        DTableView vue;
        Montre(vue, modele);
        QTableView vueDuPair;
        Montre(vueDuPair, monPair.mandataire);
        auto const notre = [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                modele.Montre(maTable,
                              filtre.Trie(filtre.Filtre(i % kFrappes == 0 ? moins : criteres),
                                          FiltreMots::kLongsDAbord));
                QCoreApplication::processEvents();
            }
        };
        auto const pair = [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                monPair.Filtre(i % kFrappes == 0 ? debut : expression);
                QCoreApplication::processEvents();
            }
        };
        maComparaison.Mesure(nom, notre, pair, 1.0, kImage);
    }

    // Key events in the field of the page; `expression` is what they leave there and take away.
    void MesurePage(char const * nom, FiltreMots::Texte const & texte, QString const & debut,
                    QString const & expression)
    {
        PageFiltres::Memoire & memoire = PageFiltres::PreteMemoire();
        memoire.mots = maTable;
        memoire.etat = {{}, texte};
        PageFiltres page;
        page.resize(kTaillePage);
        page.show();
        auto * const barre = page.findChild<BarreFiltreMots *>();
        QLineEdit * const champ = barre->PreteComboDeRecherche()->lineEdit();
        QTableView vueDuPair;
        Montre(vueDuPair, monPair.mandataire);
        auto const tape = [champ](int touche, QString const & lettre) {
            QKeyEvent presse(QEvent::KeyPress, touche, Qt::NoModifier, lettre);
            QCoreApplication::sendEvent(champ, &presse);
            QCoreApplication::processEvents();
        };
        auto const notre = [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i)
                if (i % kFrappes == 0)
                    tape(Qt::Key_Backspace, {});
                else
                    tape(texte.texte.back().toUpper().unicode(), texte.texte.right(1));
        };
        notre(kFrappes);
        Exige(champ->text() == texte.texte, "the keys have not arrived");
        auto const pair = [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                monPair.Filtre(i % kFrappes == 0 ? debut : expression);
                QCoreApplication::processEvents();
            }
        };
        maComparaison.Mesure(nom, notre, pair, 1.0, kImage);
    }

    int Resultat() const { return maComparaison.Resultat(); }

private:
    std::shared_ptr<TableMots const> maTable;
    Pair monPair;
    Comparaison maComparaison{kFrappes};
};

bool MesureLecture(TableMots const & table)
{
    QString const fichier = MotsFrancais::DonneFichierParDefaut();
    double const notre =
        MeilleureDuree(1, [&] { Garde(TableMots(LectureTexte(fichier).DonneTexte())); });
    double const pair = MeilleureDuree(1, [&] { Garde(Pair(table).mandataire.rowCount()); });
    bool const tenu = notre <= kLectureMax;
    std::printf("%-38s %7.1f ms %7.1f ms %7.2f%s\n", "reading the words", notre / 1e6, pair / 1e6,
                notre / pair, tenu ? "" : "  above the limit");
    return tenu;
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.svg*=false;qt.qpa.*=false");
    QApplication const application(nombre, arguments);
    auto const table = std::make_shared<TableMots const>(
        LectureTexte(MotsFrancais::DonneFichierParDefaut()).DonneTexte());
    Exige(table->DonneNombre() > kMotsVoulus, "the words of the package wfrench are missing");

    Banc banc(table);
    FiltreMots::Criteres const debut = CreeCriteres(FiltreMots::kCommencePar, u"re"_s);
    FiltreMots::Criteres const partie = CreeCriteres(FiltreMots::kContient, u"est"_s);
    FiltreMots::Criteres tous = partie;
    tous.longueur = FiltreMots::kNeufAOnze;
    tous.initiale = 3;
    tous.accent = FiltreMots::kAigu;
    banc.MesureFiltre("filter, begins as", debut, u"^r"_s, u"^re"_s);
    banc.MesureFiltre("filter, contains", partie, u"es"_s, u"est"_s);
    banc.MesureFiltre("filter, all criteria", tous, u"es"_s, u"est"_s, false);
    banc.MesureAffichage("keystroke, begins as, painted", debut, u"^r"_s, u"^re"_s);
    banc.MesureAffichage("keystroke, contains, painted", partie, u"es"_s, u"est"_s);
    banc.MesureAffichage("keystroke, first letter, painted",
                         CreeCriteres(FiltreMots::kCommencePar, u"a"_s), QString(), u"^a"_s);
    banc.MesurePage("key on the page, begins as", debut.textes.back(), u"^r"_s, u"^re"_s);
    banc.MesurePage("key on the page, contains", partie.textes.back(), u"es"_s, u"est"_s);
    bool const lecture = MesureLecture(*table);
    return lecture ? banc.Resultat() : 1;
}
