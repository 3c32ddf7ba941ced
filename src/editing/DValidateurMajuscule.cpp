// editing/DValidateurMajuscule.cpp
#include "editing/DValidateurMajuscule.h"

#include <utility>

DValidateurMajuscule::DValidateurMajuscule(QRegularExpression & expression, QObject * parent)
    : QRegularExpressionValidator(expression, parent)
{
}

QValidator::State DValidateurMajuscule::validate(QString & texte, int & position) const
{
    QString majuscules = texte.toUpper();
    if (majuscules.size() != texte.size() && position > 0)
        position = static_cast<int>(texte.left(position).toUpper().size());
    texte = std::move(majuscules);
    return QRegularExpressionValidator::validate(texte, position);
}
