// The dialogs that are editors of named values: their numbers, titles and names.
#pragma once

#include "frame/editor/named_values_dialog.h"

inline constexpr EditorKind macroEditor = editorKind(8131, 21010, "DLG_MACRO");
inline constexpr EditorKind constraintsEditor = listEditorKind(8715, 21011, "DLG_EDITCONSTR");
inline constexpr EditorKind cutsEditor = listEditorKind(8716, 21012, "DLG_MACROCUTS");
inline constexpr EditorKind advancedProfilesEditor = editorKind(8717, 21013, "DLG_PROFADV");
inline constexpr EditorKind objectProfileEditor = editorKind(8718, 21013, "DLG_PROFADVOBJECTS");
inline constexpr EditorKind profCutsEditor = editorKind(8719, 21014, "DLG_PROFCUTS");
inline constexpr EditorKind arrayEditor = listEditorKind(8720, 21015, "DLG_ARRAY");
inline constexpr EditorKind macroChoiceEditor = editorKind(8721, 1116, "DLG_SELECT_MACRO");
inline constexpr EditorKind featuresEditor = listEditorKind(8725, 21017, "DLG_PROFFEATURES");
inline constexpr EditorKind gridEditor = editorKind(8726, 21018, "DLG_GRID");
inline constexpr EditorKind levelsEditor = listEditorKind(8727, 21019, "DLG_LEVELS");
inline constexpr EditorKind lookUpEditor = editorKind(8728, 21020, "DLG_LOOKUP");
inline constexpr EditorKind claddingEditor = editorKind(8729, 21022, "DLG_CLADDING");
inline constexpr EditorKind cis2Editor = listEditorKind(8730, 21023, "DLG_CIS2");
inline constexpr EditorKind bracingEditor = editorKind(8731, 21024, "DLG_BRACING");
inline constexpr EditorKind genVarsEditor = listEditorKind(8732, 1764, "DLG_GENVARS");
inline constexpr EditorKind dstvPointsEditor = editorKind(8733, 21025, "DLG_DSTVPOINTS");
