#pragma once

#include <cstdint>

// The variables that several pages share. They live as long as the program and keep their value
// when a page is unloaded.
namespace clinorama::Module1 {

// The page at which the instructions open. Written by the item `Instruções` of the menu of
// `Form2`, with 1; read by the load of `Form6`.
inline std::int16_t PaginaInstrucoes = 0;

// The page at which the comments were asked for. Written by the item `Comentários` of the menu of
// `Form2`, with 1; nothing reads it, since the comments always open at their first page.
inline std::int16_t PaginaComentarios = 0;

// Code of the last guarded operation of an expression: 1 to 18 mean that it failed, 30 and more
// that it succeeded. Written by `clsEquation::Solve` alone and never reset, so a code outlives the
// evaluation that set it; read by the derivative routines of `Form12`.
inline std::int16_t CodigoDominio = 0;

// Who opened the examples window. Written by `Form12` when it opens `Form5`, with 3, and by
// `Form5` when it closes, with 0; read by the load of `Form5`.
inline std::int16_t OrigemExemplos = 0;

}  // namespace clinorama::Module1
