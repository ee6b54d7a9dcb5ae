#include "minical/FormCalcOrden.h"

using namespace Qt::Literals::StringLiterals;

const QList<FormCalc::Orden> &FormCalc::ordenes()
{
    using Sitio = Orden::Sitio;
    using F = FormCalc;
    static const QList<Orden> tabla{
        {u"Nuevo"_s, u"NUEVO"_s, u"Hoja &nueva"_s, u"Hoja nueva (Ctrl+N)"_s, {QKeySequence::New},
         &F::Nuevo},
        {u"Abrir"_s, u"ABRIR"_s, u"&Abrir…"_s, u"Abrir una hoja guardada (Ctrl+O)"_s,
         {QKeySequence::Open}, &F::Abrir},
        {u"Guardar"_s, u"GUARDAR"_s, u"&Guardar"_s, u"Guardar la hoja (Ctrl+S)"_s,
         {QKeySequence::Save}, &F::Guardar},
        {u"GuardarComo"_s, u"GUARDAR"_s, u"Guardar &como…"_s, u"Guardar con otro nombre"_s,
         {Qt::CTRL | Qt::SHIFT | Qt::Key_S}, &F::GuardarComo, Sitio::SinBoton},
        {u"Exportar"_s, u"EXPORTAR"_s, u"&Exportar como CSV…"_s,
         u"Exportar los resultados como CSV"_s, {}, &F::Exportar, Sitio::TrasRaya},
        {u"Imprimir"_s, u"IMPRIMIR"_s, u"Im&primir…"_s, u"Imprimir la hoja (Ctrl+P)"_s,
         {QKeySequence::Print}, &F::Imprimir},
        {u"Deshacer"_s, u"DESHACER"_s, u"&Deshacer"_s, u"Deshacer (Ctrl+Z)"_s,
         {QKeySequence::Undo}, &F::Deshacer, Sitio::TrasRaya},
        {u"Rehacer"_s, u"REHACER"_s, u"&Rehacer"_s, u"Rehacer (Ctrl+Y)"_s,
         {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}, &F::Rehacer},
        {u"ValorDecimal"_s, u"DECIMALES"_s, u"&Valor decimal"_s, u"Valor decimal"_s,
         {Qt::Key_F8}, &F::ValorDecimal, Sitio::TrasRaya},
        {u"Recalcular"_s, u"RECALCULAR"_s, u"Reca&lcula"_s, u"Recalcula"_s, {Qt::Key_F9},
         &F::Recalcular},
        {u"MostrarExpresiones"_s, u"EXPRESIONES"_s, u"Mostrar las e&xpresiones"_s,
         u"Mostrar las expresiones entradas"_s, {Qt::CTRL | Qt::Key_E}, &F::MostrarExpresiones},
        {u"MostrarResultados"_s, u"RESULTADOS"_s, u"Mo&strar los resultados"_s,
         u"Mostrar los resultados de las evaluaciones"_s, {Qt::CTRL | Qt::Key_R},
         &F::MostrarResultados},
        {u"Zoom"_s, u"ZOOM"_s, u"&Zoom de celdas"_s, u"Zoom de celdas"_s, {Qt::Key_F7},
         &F::Zoom},
        {u"ValidarPrecisión"_s, u"VALIDAR"_s, u"Validar pr&ecisión"_s, u"Validar precisión"_s, {},
         &F::ValidarPrecision},
        {u"CopiarResultado"_s, u"COPIAR"_s, u"Copiar el res&ultado"_s, u"Copiar el resultado"_s,
         {QKeySequence::Copy}, &F::CopiarResultado, Sitio::EnLaRejilla},
        {u"CopiarExpresión"_s, u"COPIAR"_s, u"Copiar la expresió&n"_s, u"Copiar la expresión"_s,
         {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, &F::CopiarExpresion, Sitio::EnLaRejilla}};
    return tabla;
}
