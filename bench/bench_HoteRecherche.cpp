// bench/bench_HoteRecherche.cpp
//
// A search bar over an editor with a text of a megabyte in which a word stands 10,000 times. One
// keystroke, from the key event in the field through the search, the counter, the selection and the
// highlights to what is painted, beside a plain loop of `QTextDocument::find` over the same text,
// which counts the same matches and does nothing else. The same for the most frequent letter, which
// stands there more than 100,000 times. Then replacing all of the words, beside a plain loop of
// finding and inserting in one edit block. Exits with 1 when a keystroke takes longer than the loop
// or, for the word, than a frame; for the letter, and to replace, more than 1.25 times as long.
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
constexpr double kRatioMaxLettre = 1.25;       // it also paints hundreds of highlights
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
    int nombre = 0;
    for (QTextCursor curseur = document.find(mot); !curseur.isNull();
         curseur = document.find(mot, curseur))
        ++nombre;
    return nombre;
}

// Counts how often a widget is painted.
class Peintures : public QObject
{
public:
    explicit Peintures(QWidget & widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        nombre += evenement->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int nombre = 0;
};

void Exige(bool condition, char const * quoi)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", quoi);
    std::exit(2);
}

// The last letter of `mot` comes and goes.
template <typename Editeur>
void MesureFrappe(Comparaison & comparaison, char const * nom, Fenetre<Editeur> & fenetre,
                  QTextDocument const & lu, QString const & mot, double ratioMax,
                  double dureeMax = 0.0)
{
    QString const debut = mot.chopped(1);
    fenetre.champ->clear();
    for (QChar const lettre : mot)
        fenetre.Tape(lettre.toUpper().unicode(), lettre);
    Exige(fenetre.DonneNombre() == CompteParBoucle(lu, mot), "wrong number of matches");
    auto const frappe = [&] {
        if (fenetre.champ->text() == mot)
            fenetre.Tape(Qt::Key_Backspace, {});
        else
            fenetre.Tape(mot.back().toUpper().unicode(), mot.right(1));
    };
    Peintures const peintures(*fenetre.editeur.viewport());
    for (int i = 0; i < 4; ++i) {
        int const avant = peintures.nombre;
        frappe();
        Exige(peintures.nombre > avant, "a keystroke that has not been painted");
    }
    auto const notre = [&](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            frappe();
    };
    auto const pair = [&](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            Garde(CompteParBoucle(lu, i % 2 == 0 ? debut : mot));
    };
    comparaison.Mesure(nom, notre, pair, ratioMax, dureeMax);
}

// Milliseconds.
template <typename Remplace>
double Duree(QTextDocument & document, Remplace const & remplace)
{
    auto const debut = std::chrono::steady_clock::now();
    remplace();
    QCoreApplication::processEvents();
    std::chrono::duration<double, std::milli> const duree =
        std::chrono::steady_clock::now() - debut;
    document.undo();
    QCoreApplication::processEvents();
    return duree.count();
}

// In turn, each on the original text, and the fastest of each.
template <typename Editeur>
bool MesureRemplacement(char const * nom, Fenetre<Editeur> & fenetre, Fenetre<Editeur> & autre)
{
    constexpr int kTours = 11;

    fenetre.champRemplacement->setText(u"boulanger"_s);
    auto const parLaBarre = [&] {
        fenetre.barre->BoutonRemplacerTout();
        while (fenetre.hote.EstEnTrainDeRemplacer())
            QCoreApplication::processEvents();
    };
    QTextDocument & document = *autre.editeur.document();
    auto const parBoucle = [&] {
        QTextCursor bloc(&document);
        bloc.beginEditBlock();
        QTextCursor curseur = document.find(u"meunier"_s);
        while (!curseur.isNull()) {
            curseur.insertText(u"boulanger"_s);
            curseur = document.find(u"meunier"_s, curseur);
        }
        bloc.endEditBlock();
    };
    double notre = std::numeric_limits<double>::infinity();
    double pair = notre;
    for (int tour = 0; tour < kTours; ++tour) {
        notre = std::min(notre, Duree(*fenetre.editeur.document(), parLaBarre));
        pair = std::min(pair, Duree(document, parBoucle));
    }
    bool const tenu = notre <= kRatioMaxRemplacement * pair;
    std::printf("%-38s %7.1f ms %7.1f ms %7.2f%s\n", nom, notre, pair, notre / pair,
                tenu ? "" : "  above the limit");
    return tenu;
}

template <typename Editeur>
bool Mesure(Comparaison & frappe, char const * nomFrappe, char const * nomLettre,
            char const * nomTout)
{
    QString const texte = FaisTexte();
    QTextDocument const lu(texte);
    {
        // Of its own: a document that has had hundreds of cursors is slower to edit.
        Fenetre<Editeur> fenetre(texte);
        MesureFrappe(frappe, nomLettre, fenetre, lu, u"es"_s, kRatioMaxLettre);
    }
    Fenetre<Editeur> fenetre(texte);
    MesureFrappe(frappe, nomFrappe, fenetre, lu, u"meunier"_s, 1.0, kImage);
    Exige(fenetre.DonneNombre() == kOccurrences, "wrong number of words"); // to replace
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
    bool const riche = Mesure<QTextEdit>(frappe, "keystroke, rich", "keystroke, a letter, rich",
                                         "replace all, rich");
    bool const brut = Mesure<QPlainTextEdit>(frappe, "keystroke, plain",
                                             "keystroke, a letter, plain", "replace all, plain");
    return riche && brut ? frappe.Resultat() : 1;
}
