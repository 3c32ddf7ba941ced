// galerie/FenetreGalerie.h
#pragma once

#include "noyau/DLocale.h"

#include <QMainWindow>
#include <QTranslator>

class QComboBox;
class QLabel;
class QListWidget;
class QStackedWidget;
class ThemeGalerie;

/// The window of the gallery: the list of pages at the left, the page at the right.
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

    /// Makes `langue` that of the application and builds the pages again.
    void MetsLangue(eLangue langue);
    void MontrePage(int indice);
    /// Builds the pages again, for what they show of the theme.
    void RefaisPages();

private:
    QWidget * CreePanneau();
    void PriseLangueChoisie(int indice);

    ThemeGalerie & monTheme;
    QTranslator monTraducteurQt; // of the dialogs that come from Qt
    QListWidget * maListe = nullptr;
    QLabel * monEtiquetteLangue = nullptr;
    QComboBox * monChoixLangue = nullptr;
    QStackedWidget * maPile = nullptr;
};
