#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"SUMPRODUCT",
     {"De som van de producten van de getallen die in elke matrix op dezelfde plaats staan.",
      "Die Summe der Produkte der Zahlen, die in jeder Matrix an derselben Stelle stehen.",
      "La somme des produits des nombres placés au même endroit de chaque matrice."}},
    {"MMULT",
     {"Het product van twee matrices; de eerste moet zoveel kolommen hebben als de tweede rijen.",
      "Das Produkt zweier Matrizen; die erste muss so viele Spalten haben wie die zweite Zeilen.",
      "Le produit de deux matrices ; la première doit avoir autant de colonnes que la seconde a de "
      "lignes."}},
    {"MDETERM",
     {"De determinant van een vierkante matrix.", "Die Determinante einer quadratischen Matrix.",
      "Le déterminant d'une matrice carrée."}},
    {"MINVERSE",
     {"De inverse van een vierkante matrix; #NUM! als er geen is.",
      "Die Inverse einer quadratischen Matrix; #NUM!, wenn es keine gibt.",
      "L'inverse d'une matrice carrée ; #NUM! s'il n'y en a pas."}},
    {"TRANSPOSE",
     {"De matrix met rijen en kolommen verwisseld.",
      "Die Matrix mit vertauschten Zeilen und Spalten.",
      "La matrice dont lignes et colonnes sont échangées."}},
    {"MUNIT",
     {"De eenheidsmatrix met zoveel rijen en kolommen.",
      "Die Einheitsmatrix mit so vielen Zeilen und Spalten.",
      "La matrice unité de ce nombre de lignes et de colonnes."}},
};

}  // namespace

std::span<const FunctionWords> matrixWords() {
    return rows;
}

}  // namespace editor
