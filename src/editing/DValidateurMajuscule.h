// editing/DValidateurMajuscule.h
#pragma once

#include "FabrelGuiExport.h"

#include <QRegularExpressionValidator>

/// A validator that turns what it checks to upper case, so that a field shows capitals while the
/// user types. The expression is therefore written for capitals.
///
/// The rules of upper case are the same in all languages: "i" becomes "I" in Turkish too. A text
/// may grow, as "ß" becomes "SS".
class FABRELGUI_EXPORT DValidateurMajuscule : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    /// Copies the expression.
    explicit DValidateurMajuscule(QRegularExpression & expression, QObject * parent = nullptr);

    /// Changes `texte` whatever the verdict; `position` stays behind the same character. Where the
    /// verdict is `Invalid` the position is the end of the text.
    State validate(QString & texte, int & position) const override;
};
