#pragma once

#include <cstdint>

// The variables that several pages share. They keep their values when a page is unloaded.
namespace clinorama::Module1 {

// The page at which the instructions open. Written by the item `Instruções` of the menu of
// `Form2`, with 1; read by the load of `Form6`.
inline std::int16_t PaginaInstrucoes = 0;

// The page at which the comments open. Written by the item `Comentários` of the menu of `Form2`,
// with
// 1. Nothing reads it, as the comments always open at their first page.
inline std::int16_t PaginaComentarios = 0;

// The code of the last guarded operation of an expression: 1 to 18 if it failed, 30 or more if it
// succeeded. Only `clsEquation::Solve` writes it, and nothing resets it, so a code stays until
// another guarded operation. Read by the derivative routines of `Form12`.
inline std::int16_t CodigoDominio = 0;

// Who opened the examples window. Written by `Form12` when it opens `Form5`, with 3, and by
// `Form5` when it closes, with 0; read by the load of `Form5`.
inline std::int16_t OrigemExemplos = 0;

}  // namespace clinorama::Module1
