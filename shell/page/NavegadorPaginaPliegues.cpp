// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/TextoBuscado.h"
#include "shell/page/NavegadorPagina.h"

#include <QTextBlock>
#include <algorithm>

// What a page folds away, and what is looked for in it, folded or not.

void NavegadorPagina::pliega(int pliegue)
{
    // A link that was reached by keyboard is selected, and is to stay so.
    const bool conTeclado = textCursor().hasSelection();
    if (!abiertos().remove(pliegue))
        abiertos() << pliegue;
    recarga();
    if (conTeclado)
        enfocaPliegue(pliegue);
}

void NavegadorPagina::despliega(int pliegue)
{
    const QList<int> pliegues = m_pagina.alrededor(pliegue);
    const bool todos = std::all_of(pliegues.begin(), pliegues.end(),
                                   [this](int p) { return abiertos().contains(p); });
    if (todos)
        return;
    for (const int p : pliegues)
        abiertos() << p;
    recarga();
}

int NavegadorPagina::busca(const QString &texto)
{
    m_buscado = texto;
    return static_cast<int>(m_pagina.halla(texto).size());
}

void NavegadorPagina::muestraHallazgo(int cual)
{
    const QList<int> pliegues = m_pagina.halla(m_buscado);
    if (cual < 0 || cual >= pliegues.size())
        return;
    despliega(pliegues[cual]);
    const auto aLaVista = [this](int pliegue) {
        const QList<int> todos = m_pagina.alrededor(pliegue);
        return std::all_of(todos.begin(), todos.end(),
                           [this](int p) { return abiertos().contains(p); });
    };
    auto quedan = std::count_if(pliegues.begin(), pliegues.begin() + cual, aLaVista);
    for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next()) {
        for (const qsizetype lugar : halla(m_buscado, bloque.text())) {
            if (quedan-- > 0)
                continue;
            QTextCursor cursor(document());
            cursor.setPosition(bloque.position() + static_cast<int>(lugar));
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor,
                                static_cast<int>(m_buscado.size()));
            setTextCursor(cursor);
            return;
        }
    }
}
