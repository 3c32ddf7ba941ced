// bench/bench_HoteRecherche.cpp
//
// A search bar over an editor with a text of a megabyte in which a word stands 10,000 times. One
// keystroke, from the key event in the field through the search, the counter, the selection and the
// highlights to what is painted, beside a plain loop of `QTextDocument::find` over the same text,
// which finds the same matches and does nothing with them. Then replacing all of them, beside a
// plain loop of finding and inserting in one edit block. Exits with 1 when a keystroke takes longer
// than a frame or than the loop, or replacing more than 1.25 times as long.
#include "HoteRecherche.h"

#include "search/BarreRecherche.h"

#include "Comparaison.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QVBoxLayout>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int kOccurrences = 10'000;
constexpr double kImage = 16.7e6;              // nanoseconds of a frame
constexpr double kRatioMaxRemplacement = 1.25; // it also paints on its way and searches at the end
constexpr QSize kTaille(900, 700);

// 100 characters each, the word once in each.
QString FaisTexte()
{
    QString const phrases[] = {
        u"Dès l’aube, le vieux meunier remontait la rivière et comptait les saules couchés par la "
        u"crue. "_s,
        u"« Tu viens ? » demandait le meunier à sa fille, et la réponse ne tardait guère, douce et "
        u"claire. "_s,
        u"Ni la pluie ni le gel n’arrêtaient ce Meunier : où passait l’eau, il passait aussi, "
        u"à pied. "_s,
    };
    QString texte;
    for (int i = 0; i < kOccurrences; ++i) {
        texte += phrases[i % std::size(phrases)].leftJustified(99, u'.');
        texte += i % 5 == 4 ? u'\n' : u' ';
    }
    return texte;
}

template <typename Editeur>
class Fenetre : public QWidget
{
public:
    explicit Fenetre(QString const & texte)
        : barre(new BarreRecherche(nullptr, true, true, true, true))
        , hote(editeur, *barre)
    {
        auto * const colonne = new QVBoxLayout(this);
        colonne->addWidget(&editeur);
        colonne->addWidget(barre);
        editeur.setPlainText(texte);
        resize(kTaille);
        show();
        barre->AfficheToi(CstRecherche::kNouvelleRecherche, UniChaine());
        champ = barre->findChildren<QLineEdit *>().at(0);
        champRemplacement = barre->findChildren<QLineEdit *>().at(1);
        // The layout of a rich text goes on in the background.
        while (!EstDisposay())
            QCoreApplication::processEvents();
    }

    void Tape(int touche, QString const & texte)
    {
        QKeyEvent presse(QEvent::KeyPress, touche, Qt::NoModifier, texte);
        QCoreApplication::sendEvent(champ, &presse);
        QCoreApplication::processEvents();
    }

    int DonneNombre() const
    {
        return barre->findChild<QLabel *>()->text().section(u'/', 1).toInt();
    }

    Editeur editeur;
    BarreRecherche * barre;
    QLineEdit * champ = nullptr;
    QLineEdit * champRemplacement = nullptr;
    HoteRecherche hote;

private:
    bool EstDisposay() const
    {
        QTextBlock const avantDerniere = editeur.document()->lastBlock().previous();
        return std::is_same_v<Editeur, QPlainTextEdit> || avantDerniere.layout()->lineCount() > 0;
    }
};

int CompteParBoucle(QTextDocument const & document, QString const & mot)
{
    QList<QTextCursor> occurrences;
    QTextCursor curseur = document.find(mot);
    while (!curseur.isNull()) {
        occurrences.append(curseur);
        curseur = document.find(mot, curseur);
    }
    return static_cast<int>(occurrences.size());
}

void Exige(bool condition, char const * quoi)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", quoi);
    std::exit(2);
}

// The loop has a document of its own: ten thousand cursors slow down every later edit.
// The last letter of the word comes and goes: "meunie" and "meunier" are found as often.
template <typename Editeur>
void MesureFrappe(Comparaison & comparaison, char const * nom, Fenetre<Editeur> & fenetre,
                  QTextDocument const & lu)
{
    fenetre.champ->clear();
    for (QChar const lettre : u"meunier"_s)
        fenetre.Tape(lettre.toUpper().unicode(), lettre);
    Exige(fenetre.DonneNombre() == kOccurrences, "wrong number of matches");
    Exige(CompteParBoucle(lu, u"meunier"_s) == kOccurrences, "wrong number of matches in the loop");
    auto const notre = [&](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            i % 2 == 0 ? fenetre.Tape(Qt::Key_Backspace, {}) : fenetre.Tape(Qt::Key_R, u"r"_s);
    };
    auto const pair = [&](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            Garde(CompteParBoucle(lu, i % 2 == 0 ? u"meunie"_s : u"meunier"_s));
    };
    comparaison.Mesure(nom, notre, pair, 1.0, kImage);
}

// Milliseconds, of the fastest of some rounds, each on the original text.
template <typename Remplace>
double Duree(QTextDocument & document, Remplace const & remplace)
{
    constexpr int kTours = 3;

    double meilleure = std::numeric_limits<double>::infinity();
    for (int tour = 0; tour < kTours; ++tour) {
        auto const debut = std::chrono::steady_clock::now();
        remplace();
        QCoreApplication::processEvents();
        std::chrono::duration<double, std::milli> const duree =
            std::chrono::steady_clock::now() - debut;
        meilleure = std::min(meilleure, duree.count());
        document.undo();
        QCoreApplication::processEvents();
    }
    return meilleure;
}

template <typename Editeur>
bool MesureRemplacement(char const * nom, Fenetre<Editeur> & fenetre, Fenetre<Editeur> & autre)
{
    fenetre.champRemplacement->setText(u"boulanger"_s);
    double const notre = Duree(*fenetre.editeur.document(), [&] {
        fenetre.barre->BoutonRemplacerTout();
        while (fenetre.hote.EstEnTrainDeRemplacer())
            QCoreApplication::processEvents();
    });
    QTextDocument & document = *autre.editeur.document();
    double const pair = Duree(document, [&] {
        QTextCursor bloc(&document);
        bloc.beginEditBlock();
        QTextCursor curseur = document.find(u"meunier"_s);
        while (!curseur.isNull()) {
            curseur.insertText(u"boulanger"_s);
            curseur = document.find(u"meunier"_s, curseur);
        }
        bloc.endEditBlock();
    });
    bool const tenu = notre <= kRatioMaxRemplacement * pair;
    std::printf("%-38s %7.1f ms %7.1f ms %7.2f%s\n", nom, notre, pair, notre / pair,
                tenu ? "" : "  above the limit");
    return tenu;
}

template <typename Editeur>
bool Mesure(Comparaison & frappe, char const * nomFrappe, char const * nomTout)
{
    QString const texte = FaisTexte();
    Fenetre<Editeur> fenetre(texte);
    QTextDocument const lu(texte);
    MesureFrappe(frappe, nomFrappe, fenetre, lu);
    Fenetre<Editeur> autre(texte);
    return MesureRemplacement(nomTout, fenetre, autre);
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.svg*=false;qt.qpa.*=false"); // the bar's icons are not there
    QApplication const application(nombre, arguments);
    Comparaison frappe(4);
    bool const riche = Mesure<QTextEdit>(frappe, "keystroke, rich", "replace all, rich");
    bool const brut = Mesure<QPlainTextEdit>(frappe, "keystroke, plain", "replace all, plain");
    return riche && brut ? frappe.Resultat() : 1;
}
