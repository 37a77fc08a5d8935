#include "help_window.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "platform/paths.h"
#include "platform/platform.h"

#ifndef MF_VERSION
#define MF_VERSION "0.1"
#endif

namespace mf::app {

QString HowToPlayText() {
  return QStringLiteral(R"(
<h2>How to play Marrowfield</h2>
<p>Each regime has its turn in order. In your turn you give orders to your
formations on the map; then you press <b>Next turn</b>. Whoever first holds
towns with the population the scenario asks for wins.</p>

<h3>The screen</h3>
<ul>
<li><b>Top line</b>: whose turn it is, the turn number and your political
points (PP), which pay for research, diplomacy and new units.</li>
<li><b>Map</b>: click a hex to select it; click again to step through the
formations stacked there. Hover over a hex to see what you know of it.</li>
<li><b>Minimap</b> (top right): click or drag to look at another part of the map.</li>
<li><b>Side panel</b>: the selected hex, its town, its supply, and the
selected formation: its troops, readiness (RDN), experience (EXP), supply
(SUP), movement points (MP), officer and chain of command. Values of foreign
formations you cannot know read "N/A".</li>
<li><b>Order buttons</b> under the map: enabled when the selection allows the
order. Hold the mouse over a button to read its key and what it does.</li>
<li><b>Help line</b> at the bottom: what the game expects of you now.</li>
</ul>

<h3>The counters</h3>
<p>A counter is a card in its regime's colour. The symbol tells its kind:
crossed lines are foot infantry, a lorry motorised troops, a gun artillery, a
tank armour, a ship a fleet, an aircraft an air wing, a pennant a THQ and two
stars an SHQ. The badge in the upper right corner shows which THQ a formation
belongs to.</p>
<p>The two figures on a counter are its <b>attack</b> (left) and
<b>defence</b> (right): the strength of its troops, lowered by poor readiness
and little experience. A figure over the card is the range strength of its
long-range guns. An enemy formation under fog of war shows only an estimate,
"+-12". "Low" means the formation has too little attack to take enemy land;
"SHQ" marks a strategic HQ.</p>
<p>Your own formations warn you: a <b>grey</b> counter has no HQ above it, a
grey counter with a <b>red ring</b> gets no supply.</p>

<h3>Supply</h3>
<p>Towns feed SHQs, SHQs feed the formations within reach. The side panel
shows the supply that reaches the selected hex: the icon shows the way (land,
through a port, over open shore, or none) and the share is green when it is
good, yellow when it thins out and red near the end of the reach. With
<b>View &gt; Show Supply</b> the map prints, at the foot of each hex of yours,
what an SHQ makes (green) or what your formations there asked for.</p>

<h3>Moving</h3>
<p>Select a formation, press <b>[M]ove</b> (key M). The hexes it can reach
turn dark and get a light outline; the cost shows at the top as you move the
mouse. Click a reachable hex to move there, or press Esc to stay.</p>

<h3>Attacking</h3>
<ol>
<li>Select the enemy hex and press <b>[A]ttack</b> (key A). The target gets a red ring.</li>
<li>Select a hex of yours next to it (or with guns in range) and click the
formation's picture in the side panel: it joins the attack, gets an orange
frame and the map marks its hex. Click it again to take it out. Each needs
2 movement points; aircraft cannot join (use Interdict).</li>
<li>Press <b>DO ATTACK</b> (or Enter). The battle window shows the fight.</li>
</ol>

<h3>Keys</h3>
<table cellspacing="4">
<tr><td><b>M A P C N T O R D E L U I S F Y</b></td><td>the order buttons, as marked in their captions</td></tr>
<tr><td><b>Enter</b>, <b>Space</b></td><td>carry out the order under way; in a window, its main button</td></tr>
<tr><td><b>Esc</b></td><td>cancel the order under way</td></tr>
<tr><td><b>Arrow keys</b>, <b>mouse wheel</b></td><td>scroll the map (Shift + wheel sideways)</td></tr>
<tr><td><b>Ctrl + wheel</b></td><td>zoom in and out (also View &gt; Zoom)</td></tr>
<tr><td><b>F1</b></td><td>sound on and off</td></tr>
<tr><td><b>F11</b></td><td>show or hide the computer player's analysis log</td></tr>
</table>

<h3>Saving</h3>
<p>File &gt; Save writes your game to your own game folder; File &gt; Load
reads it back. A game by e-mail is saved when you press "Save PBEM &amp; Exit
this game" and mailed by you to the next player.</p>
)");
}

QString AboutText() {
  return QStringLiteral(
             "<h2>Marrowfield</h2><p>Version %1</p>"
             "<p>A turn-based strategic wargame on a hex map, with its scenario editor and its random "
             "scenario generator built in.</p>"
             "<p>Every picture and sound of the game is drawn and synthesised by its own generator.</p>"
             "<p>Your saved games: %2</p>")
      .arg(MF_VERSION, QString::fromStdString(mf::UserGameDir()).toHtmlEscaped());
}

HelpWindow::HelpWindow(const QString& objectName, const QString& title, const QString& html, QWidget* parent)
    : QDialog(parent) {
  setObjectName(objectName);
  setWindowTitle(title);
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  auto* text = new QTextBrowser(this);
  text->setObjectName("helpText");
  text->setOpenExternalLinks(false);
  text->setHtml(html);
  layout->addWidget(text, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  layout->addWidget(buttons);
  resize(objectName == "aboutWindow" ? QSize(420, 300) : QSize(640, 720));
}

}  // namespace mf::app
