// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// A piece of a page of introduction: a tag, what stands between two of them, or anything else
/// that is not shown (a comment, the document type).
struct TrozoDePagina
{
    enum Tipo { Texto, Abre, Cierra, Otro };
    Tipo tipo = Texto;
    QString codigo; ///< as it stands in the page
    QString nombre; ///< of the element, in small letters; empty for what is no tag

    /// The value of an attribute of an opening tag, empty where it has none.
    QString atributo(const QString &cual) const;
    /// The characters that a text stands for.
    QString texto() const;
};

/// Takes a page apart. Takes any text: what is no tag is text. The pieces make up the page again.
QList<TrozoDePagina> trozosDePagina(const QString &pagina);

/// The part of the style sheet that is for the program's viewer: what stands before the first
/// "@media". It would not use the rest, but search it for each element of a page, which takes most
/// of the time in which a page is read.
QString estiloDelPrograma(QString hoja);
