// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSALista.h"

#include "shell/core/ModGlobal.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/grid/Rejilla.h"

using namespace Qt::Literals::StringLiterals;

FormRSALista::FormRSALista(Rejilla *rejilla, QObject *padre)
    : QObject(padre),
      m_rejilla(rejilla),
      m_tabla(Traduce(u"<Dirigido a     |<De           |<Asunto"_s))
{
    rejilla->setModel(&m_tabla);
    rejilla->setSelectionMode(QAbstractItemView::SingleSelection);
    new ColumnasRepartidas(rejilla);
    connect(rejilla, &QTableView::clicked, this, &FormRSALista::elegida);
    connect(rejilla->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FormRSALista::elegida);
    connect(rejilla, &QTableView::activated, this, [this](const QModelIndex &celda) {
        m_rejilla->selectRow(celda.row());
        Q_EMIT activada();
    });
}

void FormRSALista::ponTextoVacio(const QString &texto)
{
    m_rejilla->ponTextoVacio(texto);
}

QString FormRSALista::claveDeFila(qsizetype fila) const
{
    const QStringList &textos = m_tabla.filas()[fila];
    return ColMensajes::clave(textos[1], textos[0], textos[2]);
}

QString FormRSALista::claveElegida() const
{
    const QModelIndexList filas = m_rejilla->selectionModel()->selectedRows();
    return filas.isEmpty() ? QString() : claveDeFila(filas.constFirst().row());
}

bool FormRSALista::pon(const ColMensajes &mensajes, const QString &elegido)
{
    QList<QStringList> filas;
    filas.reserve(mensajes.Count());
    for (const auto &mensaje : mensajes)
        filas << QStringList{mensaje->Destinatario(), mensaje->Remitente(), mensaje->Asunto()};
    m_tabla.ponFilas(filas);
    for (int fila = 0; !elegido.isEmpty() && fila < m_tabla.rowCount(); ++fila) {
        if (claveDeFila(fila) == elegido) {
            m_rejilla->selectRow(fila);
            return true;
        }
    }
    return false;
}
