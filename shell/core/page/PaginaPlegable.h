// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <optional>

struct TrozoDePagina;

/// A page of introduction as the program's viewer shows it, which folds no text by itself: each
/// `details` becomes a line with a triangle that is a link "pliegue:<number>", and what is folded
/// is left out. Behind each figure stands one more fold, with its alternative text. Folds are
/// numbered from 0 in the order of the page. Takes any text; what is no page stays as it is.
class PaginaPlegable
{
public:
    explicit PaginaPlegable(const QString &pagina = {});

    /// What a QTextBrowser is to show, with these folds open.
    QString muestra(const QSet<int> &abiertos) const;

    int pliegues() const { return static_cast<int>(m_padres.size()); }

    /// A fold with those around it, outermost first; empty for -1.
    QList<int> alrededor(int pliegue) const;

    /// The innermost fold that holds a place; -1 for a place outside of all, and for none.
    int pliegueDe(const QString &lugar) const { return m_pliegueDeLugar.value(lugar, -1); }

    /// A line of the table of contents.
    struct Apartado
    {
        QString lugar; ///< id of the section
        QString titulo;
    };
    const QList<Apartado> &contenido() const { return m_contenido; }

    /// A question that the page asks, and the answer that it gives away to the judge.
    struct Pregunta
    {
        QString enunciado; ///< HTML of one paragraph
        QString respuesta;
    };
    std::optional<Pregunta> pregunta(const QString &lugar) const;

    /// The innermost fold of each place that holds the searched text, in the order of the page; -1
    /// for what is always in sight. As `halla` of TextoBuscado, no place reaches over two blocks.
    QList<int> halla(const QString &buscado);

private:
    struct Pieza
    {
        enum Tipo { Html, Titulo, Abre, Cierra };
        Tipo tipo = Html;
        QString html;
        int pliegue = -1;
    };
    struct Bloque
    {
        QString texto;
        int pliegue = -1;
    };
    class Lector;

    QList<Pieza> m_piezas;
    QList<Bloque> m_bloques; ///< read for the first search
    QString m_texto;         ///< the page as it was given
    QList<int> m_padres;     ///< of each fold, the one around it or -1
    QStringList m_clases;
    QHash<QString, int> m_pliegueDeLugar;
    QHash<QString, Pregunta> m_preguntas;
    QList<Apartado> m_contenido;
};
