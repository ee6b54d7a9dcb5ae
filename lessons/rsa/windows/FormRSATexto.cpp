// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSATexto.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextOption>

namespace {

/// As many as Qt wraps between words without being felt.
constexpr qsizetype MaximoSinBlancos = 5000;

bool tienePalabraEnorme(QStringView texto)
{
    qsizetype seguidos = 0;
    for (const QChar caracter : texto) {
        seguidos = caracter.isSpace() ? 0 : seguidos + 1;
        if (seguidos > MaximoSinBlancos)
            return true;
    }
    return false;
}

QTextOption::WrapMode modoPara(bool enorme)
{
    return enorme ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

} // namespace

FormRSATexto::FormRSATexto(QWidget *padre) : QPlainTextEdit(padre)
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int lugar, int, int anadidos) { ajustaRenglones(lugar, anadidos); });
}

void FormRSATexto::ponTexto(const QString &texto)
{
    // Replacing a text lays out the new one before anybody is told of more than that the old is
    // gone.
    const QScopedValueRollback<bool> poniendo(m_poniendo, true);
    setWordWrapMode(modoPara(tienePalabraEnorme(texto)));
    setPlainText(texto);
}

/// Told of each change before the lines are laid out.
void FormRSATexto::ajustaRenglones(int lugar, int anadidos)
{
    if (m_poniendo)
        return;
    // A long word from before may still be there, unless little is, or nothing of what was.
    const int caracteres = document()->characterCount();
    const bool quedaLoDeAntes = caracteres > MaximoSinBlancos && anadidos < caracteres - 1;
    bool enorme = wordWrapMode() == QTextOption::WrapAnywhere && quedaLoDeAntes;
    const QTextBlock fin = document()->findBlock(lugar + anadidos);
    for (auto parrafo = document()->findBlock(lugar); !enorme && parrafo.isValid();
         parrafo = parrafo.next()) {
        enorme = parrafo.length() > MaximoSinBlancos && tienePalabraEnorme(parrafo.text());
        if (parrafo == fin)
            break;
    }
    if (modoPara(enorme) != wordWrapMode())
        setWordWrapMode(modoPara(enorme));
}
