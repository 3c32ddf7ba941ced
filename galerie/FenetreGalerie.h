// galerie/FenetreGalerie.h
#pragma once

#include "noyau/DLocale.h"

#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QTranslator>
#include <QVariant>

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
    /// Does nothing without a page of that index.
    void MontrePage(int indice);
    /// Builds the pages again, for what they show of the theme. What was entered stays.
    void RefaisPages();

private:
    struct Page
    {
        QPointer<QWidget> widget;             // null until it is shown
        QHash<QString, QVariantList> saisies; // of widgets of one name, in their order
    };

    QWidget * CreePanneau();
    void ConstruisPage(int indice);
    void PriseLangueChoisie(int indice);

    ThemeGalerie & monTheme;
    QTranslator monTraducteurQt; // of the dialogs that come from Qt
    QListWidget * maListe = nullptr;
    QLabel * monEtiquetteLangue = nullptr;
    QComboBox * monChoixLangue = nullptr;
    QStackedWidget * maPile = nullptr; // a frame for each page
    QList<Page> mesPages;
};
