// galerie/FenetreGalerie.h
#pragma once

#include "noyau/DLocale.h"

#include <QMainWindow>
#include <QTranslator>

#include <memory>

class OngletsGalerie;
class PagesOuvertes;
class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class ThemeGalerie;

/// The main window of the gallery: the list of pages at the left, the tabs of those that are open
/// at the right.
///
/// Texts are looked up when a widget is built, so another language means other pages. What was
/// typed and chosen in the old ones goes over to the new ones, widget by widget, by their object
/// names.
class FenetreGalerie : public QMainWindow
{
    Q_OBJECT

public:
    /// `theme` must outlive the window.
    explicit FenetreGalerie(ThemeGalerie & theme);
    ~FenetreGalerie() override;

    OngletsGalerie & PreteOnglets() const { return *mesOnglets; }

    /// Makes `langue` that of the application and builds the pages again, in all windows.
    void MetsLangue(eLangue langue);
    /// Makes the page current in whichever window it stands, or opens it here. Does nothing without
    /// a page of that index.
    void MontrePage(int indice);
    /// Shows the page here, closing all others.
    void MontreSeule(int indice);
    /// Builds the pages again, for what they show of the theme. What was entered stays.
    void RefaisPages();

protected:
    void closeEvent(QCloseEvent * evenement) override;
    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    QWidget * CreePanneau();
    void CreeOnglets(ThemeGalerie & theme);
    void Branche();
    void MarquePage(int page);
    void PrisePageChoisie(QListWidgetItem * element);
    void PriseLangueChoisie(int indice);

    QTranslator monTraducteurQt; // of the dialogs that come from Qt
    QListWidget * maListe = nullptr;
    QLabel * monEtiquetteLangue = nullptr;
    QComboBox * monChoixLangue = nullptr;
    OngletsGalerie * mesOnglets = nullptr;
    QLabel * maPhrase = nullptr; // where no page is open
    std::unique_ptr<PagesOuvertes> mesPages;
    int maPage = -1; // which the list marks
};
