// galerie/TexteCherchable.h
#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

class BarreRecherche;
class DialogueRechercher;
class HoteRecherche;
class QLineEdit;
class QPlainTextEdit;
class QStackedWidget;
class QTextEdit;
class TraceSignaux;
class WidgetRechercheAbstrait;

/// A text with a search bar below and, on request, a search dialog, in a `QPlainTextEdit` or in a
/// `QTextEdit`. One front end is open at a time.
class TexteCherchable : public QWidget
{
    Q_OBJECT

public:
    /// `trace` gets the signals of the bar and the calls on the hosts. The keys to search work in
    /// `zone`, which this widget is or is to be in.
    TexteCherchable(TraceSignaux & trace, QWidget & zone, QWidget * parent = nullptr);
    ~TexteCherchable() override;

    /// Forgets what was done to the text before.
    void MetsTexte(QString const & texte);
    /// With its no-break spaces.
    QString DonneTexte() const;
    /// Whether the text stands in the `QTextEdit`. It goes over from one to the other.
    void MetsRiche(bool riche);

    void OuvreBarre();
    void OuvreDialogue();
    /// Opens the bar, and searches for what stands in its field, or else for `texte`, without
    /// taking the focus from where it is.
    void Demontre(QString const & texte);
    void OuvreRemplacement();
    void Cherche(QString const & texte);
    bool BarreEstOuverte() const;

    /// Gives the focus back that the bar takes when it is shown together with all around it.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void showEvent(QShowEvent * evenement) override;
    void hideEvent(QHideEvent * evenement) override;

private:
    void CreeEditeurs();
    void CreeBarre();
    void CreeDialogue();
    bool EstRiche() const;
    void Relie(std::unique_ptr<HoteRecherche> & hote, WidgetRechercheAbstrait & frontal);
    void RelieBarre();
    void PriseTrouvay(bool trouvay);

    TraceSignaux & maTrace;
    QWidget & maZone;
    QStackedWidget * maPile = nullptr;
    QPlainTextEdit * monEditeur = nullptr;
    QTextEdit * monEditeurRiche = nullptr;
    BarreRecherche * maBarre = nullptr;
    QLineEdit * monChampRecherche = nullptr;    // the bar's
    DialogueRechercher * monDialogue = nullptr; // null until it is asked for
    std::unique_ptr<HoteRecherche> monHoteBarre;
    std::unique_ptr<HoteRecherche> monHoteDialogue;
    QPointer<QWidget> monFocus; // before the bar took it
};
