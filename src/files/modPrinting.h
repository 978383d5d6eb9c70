#pragma once

struct MessageBox;
struct PrintChoices;
struct PrintError;
struct PrintJob;
struct ProgramContext;
class Document;

/// Printing the source of documents.

/// Asks for a printer and the number of copies, and prints the active document's source.
void PrintDocument(ProgramContext &context);

/// What the user is told of a print that failed.
MessageBox printErrorBox(const PrintError &error);
/// What the user has chosen to be printed besides the plain source.
PrintChoices printChoices(const ProgramContext &context);
/// The document laid out for the chosen printer's paper.
PrintJob printJob(ProgramContext &context, const Document &document, const PrintChoices &choices);
