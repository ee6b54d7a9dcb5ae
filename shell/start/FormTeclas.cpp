// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormTeclas.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/ModeloFilas.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Imagenes.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FormTeclas::FormTeclas(QWidget *padre)
    : QDialog(padre),
      m_modelo(
          new ModeloFilas({Traduce(u"Tecla"_s), Traduce(u"Qué hace"_s), Traduce(u"Dónde"_s)}, this))
{
    setObjectName(u"FormTeclas"_s);
    setWindowTitle(Traduce(u"Teclas"_s));
    setWindowIcon(Icono(u"AYUDA"_s));
    m_modelo->ponColumnasDeTexto({0, 1, 2});
    auto *rejilla = new Rejilla(this);
    rejilla->setObjectName(u"FlexTeclas"_s);
    rejilla->setAccessibleName(windowTitle());
    rejilla->setModel(m_modelo);
    rejilla->setSelectionBehavior(QAbstractItemView::SelectRows);
    rejilla->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    rejilla->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    auto *botones = new QDialogButtonBox(this);
    auto *cerrar = botones->addButton(Traduce(u"&Cerrar"_s), QDialogButtonBox::RejectRole);
    cerrar->setObjectName(u"cmdCerrar"_s);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *columna = new QVBoxLayout(this);
    columna->addWidget(rejilla);
    columna->addWidget(botones);
    const QFontMetrics letra = fontMetrics();
    resize(95 * letra.averageCharWidth(), 28 * letra.height());
}

void FormTeclas::muestra(const QList<QStringList> &teclas)
{
    if (teclas != m_modelo->filas())
        m_modelo->ponFilas(teclas);
}
