#pragma once

#include <QString>

class QUrl;
class QWebEngineScript;

/// Takes from pages, before their own scripts run, what they could only use to reach other hosts or to go on unseen,
/// and the console: nobody reads it here, and each line would take memory of the program's own.
QWebEngineScript withoutWaysOut();
/// Notes which form was sent last, and by which button, where the page's scripts do not see it.
QWebEngineScript notesForms();
/// Sends the form that goes to that address once more; its value tells whether there is one. It runs where notesForms
/// has noted.
QString sendsForm(const QUrl &address);
