// The data text format: data trees and configuration as readable, diffable text.
#pragma once

#include "foundation/base/qor_string.h"
#include "foundation/data/data_item.h"

#include <cstddef>
#include <string>

// A file holds the children of a root directory, one entry per line; the text is
// UTF-8 (a leading byte order mark is skipped), lines end in LF or CR LF.
//
//   file     = { entry | blank | comment } ;
//   entry    = key "=" value            (a value item; the value ends with the line
//                                        unless a list is open)
//            | key "{" { entry } "}"     (a directory; "{" ends its line, "}" stands
//                                        alone, "{ }" is an empty directory)
//            | "=" value                (only entry: the root itself holds a value)
//   key      = string [ "k" ]           (a string segment; "k": type 5020)
//            | integer                  (an integer segment, 5003)
//   value    = element { element } ;
//   element  = "nil"                    (5019; alone: the empty value)
//            | "t"                      (5021)
//            | integer [ "s" | "r" ]    (5010; "s" 5003 short; "r" 5031)
//            | real [ "a" ]             (5001; "a" 5004 angle)
//            | string [ "k" ]           (5005; "k" 5020)
//            | "[" num num num "]" [ "2" ] (5009 point; "2": 5002)
//            | "<" integer integer ">"  (5006 entity name, two 64-bit words)
//            | "(" { element } ")"      (5016 ... 5017)
//            | "(" { element } ".)"     (5016 ... 5018, a dotted pair's end)
//   real     = decimal text with "." or an exponent | "inf" | "-inf"
//            | "nan(0x" 16 hex digits ")"   (the NaN with exactly these bits)
//   string   = '"' { character | escape } '"' ;
//   escape   = '\\' | '\"' | '\n' | '\r' | '\t' | '\u{' hex digits '}' ;
//   comment  = "#" up to the end of the line (outside strings)
//
// Reals are written as the shortest text that reads back to the same bits, so a
// tree written and read again is identical, bit for bit. Keys are written in the
// directory's order. Strings are written as UTF-8; characters that are not
// printable or not valid Unicode scalar values (a lone surrogate) are escaped.
//
// Example:
//   "ORV_MENU" {
//       "COLOR" {
//           "PDSIZE" = 0.5
//           "PDMODE" = 3
//       }
//   }
//   "VL" = ([0.0 0.0 1.0] ([0.0 0.0 0.0] [10.0 0.0 0.0] 0.0 0))
//   21 = "a key that is an integer"
namespace QOR {

// The text of a tree: the children of a directory item, or "= value" for a value
// item.
QOR_API std::string dataTextWrite(const CQorDataItem& root);
QOR_API bool dataTextWriteFile(const wchar_t* fileName, const CQorDataItem& root);

// Reads a text into `root`: on success root's content is replaced by the tree
// read; on failure `root` is unchanged and `error` reads
// "line L, column C: what is wrong" (both counted from 1, columns in bytes).
// Nesting of directories and lists deeper than kDataTextMaxDepth is refused.
QOR_API bool dataTextRead(const char* text, std::size_t size, CQorDataItem& root,
                          CQorString& error);
QOR_API bool dataTextReadFile(const wchar_t* fileName, CQorDataItem& root, CQorString& error);

constexpr int kDataTextMaxDepth = 200;

} // namespace QOR
