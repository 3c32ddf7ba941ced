// galerie/Pages.h
#pragma once

#include "noyau/ChaineLocalisable.h"

#include <QList>
#include <QString>

class QIcon;
class QTableView;
class QVBoxLayout;
class QWidget;
class ThemeGalerie;

/// One page of the gallery.
struct DescriptionPage
{
    ChaineLocalisable titre;
    QString nom; ///< of its icon, and in the file names of its pictures
    QWidget * (*cree)(ThemeGalerie & theme);
};

/// The pages in the order of the list. A widget's page is added here.
QList<DescriptionPage> const & DonnePages();

/// The page's icon, drawn as it is where it is selected too: the style would tint it.
QIcon CreeIconePage(DescriptionPage const & page);

/// The layout of a page, begun with its title and a sentence on what the page shows.
QVBoxLayout * CreeMiseEnPage(QWidget * page, QString const & titre, QString const & explication);

/// Gives a table the look and the keys that those of all pages have: whole striped rows, no line
/// numbers, and a Tab key that leaves it.
void PrepareTable(QTableView & table);
