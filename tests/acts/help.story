Opened apartment.dxf
; drawing: samples/apartment.dxf | en
; language: en
; options: --regional en
; F1 opens each dialog's page, the help command the start page.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        ... and 12 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> key F1
[help: en/replace.html]
Block replacement
=================

Replaces the references of a block with references of another, at the same
place. What isn't ticked is taken over from the old reference. Command
VNREPLACE.

Before you start
----------------
  - A reference on a locked layer can't be erased: the replacement stops
    there, with the old one and the new one at the same place. Unlock first,
    or undo the command afterwards.
  - An invisible reference becomes visible: for visibility, Unchanged takes
    nothing over. For scales and rotation, the old reference's value is taken
    over.
  - Layer, colour and linetype are not taken over: the new reference is on the
    current layer, in model space, even if the old one was in a layout. Make
    the layer you want the current one first; on Linux (setvar "VNKEEP"
    "layer,colour,linetype") has all three taken over.
  - An empty source value erases the default value of the attribute that it is
    copied to.
  - The rotation is in radians: for a quarter turn type 1.5708, not 90.
  - The message of success also appears when there was nothing to replace.
    Look at the number before.

Blocks to replace
-----------------
  Block name
      the blocks inserted in the drawing; the one chosen will be replaced. The
      lists show blocks without a name too, *D… of dimensions and *U… of
      dynamic blocks; as the list is sorted, one of them may be chosen when
      the dialog opens
  Select
      (below the list) pick a reference of the block in the drawing
  Reference zone: Whole drawing
      all references of the block, those of layouts too
  Reference zone: Selection
      only those that you select; the selection starts at once
  Select
      (beside Selection) select again
  Number of blocks to replace:
      what the zone holds, dimensions included for a block *D…; Vorlane's
      command LIST on Linux doesn't count them

Replacement block
-----------------
  Block name
      a block of the drawing, chosen or typed; the two commands of the list
      are <<< Select, which picks it in the drawing, and Browse >>>, which
      takes it from a drawing file
  Insertion parameters ( Tick to change )
      a ticked box replaces the value; an empty one leaves Unchanged
  Rotation
      in radians
  Visibility
      On, Off, or Unchanged
  X scale, Y scale, Z scale
      the three scales; a negative one mirrors the block
  Transfer attribute values
      copy the values of the old attributes into the new ones; possible only
      when both blocks have attributes and the second was chosen from the
      list: after typing, or after <<< Select, the box stays greyed
  Set up
      tell which attribute feeds which
  Replace
      does the work; the dialog stays open
  Close
      ends the command

Example
-------

Replace all doors PORTE_80 with PORTE_90, and keep their mark:
  1. Choose PORTE_80 in the first Block name. The number of references shows
     at the bottom: 16.
  2. Choose PORTE_90 from the list of the second Block name.
  3. Tick Transfer attribute values, click Set up and pair REPERE with CODE.
  4. Click Replace, then Close.

If you cancel
-------------
  Esc while picking the block to replace
      an object that is no block, or nothing: a question comes, OK asks again,
      Cancel gives up. After giving up the command has ended: start it again
  Esc while selecting the zone
      the command has ended: start it again
  Giving up after <<< Select
      the dialog comes back with the name of before
  Cancelling Browse >>>
      the dialog comes back, the block name is empty
  Unticking a box
      loses what you typed; ticking it again starts from 1, or from 0 for the
      rotation
  After Replace
      the drawing program's undo takes the whole command back in one step

Limits
------
  - More than 32,767 references at once are refused.
  - A dimension can't be replaced: for a block *D… the replacement fails with
    error 438.
  - A second click on Replace fails, since the references of the zone are
    gone. Choose the zone, or the block, again first.
  - Changing the block to replace puts the zone back to Whole drawing.
  - Numbers are checked at every keystroke: clearing the field or starting
    with a minus sign triggers the message. Click OK and carry on.
  - References inside other blocks are not touched.
[end of help]
> lstDestination = PORTE_80
> CboBlocReplacer # 20
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Attribute value transfer settings
  Frame1: Matching table
    ListView1: 3 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | REPERE |
        2 | LARGEUR |
        3 | FEU |
  Combo2: ""
      0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribute in the destination block:
  OKButton: [OK]
> key F1
[help: en/attset.html]
Attribute value transfer settings
=================================

Tells which attribute of the block to replace feeds which attribute of the
replacement block. Opened by Set up in the replacement.

Before you start
----------------
  - The table stays from one command to the next. After a change of block,
    open this dialog again: it makes the table anew, whereas Replace without
    opening it uses the old one.
  - Values are taken by the attribute's place in the reference, not by its
    name.
  - An empty source value is copied too: it erases the default value of the
    destination attribute.
  - Nothing is proposed, not even for attributes of the same name: an empty
    row copies nothing.

What the dialog shows
---------------------
  Matching table
      a row for each attribute of the source block; on the right the
      destination attribute, empty as long as nothing is paired
  Attribute in the destination block:
      its tag for the row chosen; the choice goes into the table at once
  OK
      closes the dialog; the table stays

Example
-------

The door to replace has REPERE, LARGEUR and FEU, the new door CODE, PASSAGE
and COUPE_FEU (mark, width, fire rating). Click the row REPERE and choose
CODE: each door keeps its mark. LARGEUR stays unpaired, since the width of 80
would be false on a door of 90; so does FEU, since its empty values would
erase "néant".

If you cancel
-------------

There is no Cancel button. A pairing can't be removed, only moved. To start
afresh, close the dialog by its close box: the table is lost then, and made
anew, empty, the next time.

Limits
------
  - Two rows for one attribute: the upper one wins.
  - The dialog keeps the language of its first opening until you leave the
    drawing program.
[end of help]
> OKButton
[fmAttSet] hidden
> BtnClose
[fmReplace] hidden
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: _
    Text1: ""
    Combo1: "Saisie manuel" (disabled)
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        ... and 5 more
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings] (disabled)
  BtnInserer: [Insert] (disabled)
  OKButton: [Close]
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> key F1
[help: en/labels.html]
Labelling
=========

Inserts a block, click after click, and fills its attributes with values that
you type or that are read from the drawing. Command VNLABEL.

Before you start
----------------
  - A leader line is asked for at each label until you untick it in Insertion
    parameters.
  - Esc while a point or an object to read is asked for: the label takes the
    value of the pick before, without a message.
  - An object without length, perimeter or circumference, a text or an arc for
    instance, gives nothing in these modes: only prefix and suffix remain. An
    arc has an area, a text has none. An object that has two of these measures
    gives their sum.
  - A region has its perimeter and area in AutoCAD only: its shape stands in
    data of AutoCAD's modeller. Without AutoCAD it gives nothing.
  - Going to a row with Incrément Auto puts its counter back to the initial
    value.

What the dialog shows
---------------------
  Block to insert:
      the block that serves as label, chosen or typed
  Select...
      pick it in the drawing
  Browse...
      take it from a drawing file
  Attribute values
      a row for each attribute: its tag, its value, its mode; below the list
      the value and the mode of the row chosen
  ...
      the format of the mode chosen: prefix, suffix, decimals or counter
  Settings
      scales, rotation and leader line: Insertion parameters
  Insert
      starts placing labels
  Close
      ends the command

The modes
---------

Their names are French in every language.
  Saisie manuel
      (typed value) what you typed
  Abscisse X Auto, Ordonnée Y Auto, Cote Z Auto
      X, Y or Z of a point; one click serves all three
  Longueur Auto Monoclic, Périmètre Auto Monoclic, Aire Auto Monoclic
      length, perimeter or area of an object that you pick; one click serves
      all three, and layer and colour too
  Longueur Auto Polyclic, Périmètre Auto Polyclic, Aire Auto Polyclic
      the same of an outline clicked point by point and ended by Enter or Esc.
      The closing side counts for perimeter and area, not for the length. The
      points' Z is ignored. Fewer than two points give 0
  Incrément Auto
      a counter, one for each attribute
  Nom du Calque, Couleur
      layer and colour of an object that you pick

Example
-------

Label the rooms of a plan with their number and area:
  1. Choose the label's block.
  2. Click the row of the number, choose Incrément Auto, then ...: initial
     value 1, increment 1.
  3. Click the row of the area, choose Aire Auto Polyclic, then ...: suffix
     "m²" preceded by a space, 2 decimals.
  4. Click Insert. For each room: the insertion point, the corners of the room
     and Enter, and the leader line if it is asked for.
  5. Esc at the insertion point brings the dialog back.

If you cancel
-------------
  Esc after Select...
      a question comes, OK asks again, Cancel brings the dialog back with the
      block of before
  at the insertion point
      the series ends cleanly, the dialog comes back
  at the orientation
      nothing is inserted, and the attributes of the label before are asked
      for and written again
  at a point or an object to read
      the label takes the value of the pick before; without one, an empty
      value
  in a clicked outline
      the outline ends, as by Enter
  at the leader line's first point
      the second point is still asked for, then the series ends; the label
      stays
  at the leader line's second point
      a line is drawn to the end of the one before, if there is one; the
      series ends, the label stays

Labels already placed stay in the drawing; the drawing program's undo takes
the whole command back in one step.

Limits
------
  - Two series of Insert in a row go on counting. The first label of a counter
    shows the initial value as you typed it, 001 for instance; the next ones
    are 2, 3 and so on.
  - With the arrow keys, the fields below the list are one row behind. Click
    instead.
  - The format is remembered by mode, from one session to the next; the values
    and modes of attributes are not.
  - Choosing another block puts the scales back to 1 and the rotation to 0.
  - After a cancelled Browse the name is empty, but the rows stay, and Insert
    too: it places nothing.
[end of help]
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Aire Auto Monoclic
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0"
      > 0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> key F1
[help: en/attformat.html]
Attribute format
================

Sets what stands around an attribute's value and how it is written. Opened by
... in the labelling, for the row chosen, in every mode but the typed one.

Before you start
----------------
  - Initial value and increment are read with a decimal point, whatever your
    settings: 0.5, not 0,5. A text that is no number counts as 0, without a
    message.
  - OK on a counter puts it back to its initial value.
  - The format belongs to the mode: an attribute that takes the mode later
    receives it. Another attribute that has it already keeps its own until its
    row is chosen again.

What the dialog shows
---------------------
  Attribute 1:
      the attribute's tag; the text always says 1
  Value mode:
      the mode of the row
  Value
      the frame of the settings, by mode
  Prefix, Suffix
      written before and after the value, spaces included
  Nombre de décimaux
      number of decimals, 0 to 9, for coordinates and measures; the value is
      rounded. The list shows masks, 0.00 for two decimals; the value is
      written with your system's decimal separator
  Valeur initiale
      initial value of a counter, in place of the decimals; both captions stay
      French
  Increment
      what the counter adds at each label; negative or fractional if you like
  OK
      keeps the format for this attribute and for the mode
  Cancel
      changes nothing

Example
-------

Prefix "L=", suffix "m" preceded by a space, two decimals: a length of 12.346
is written "L=12.35 m".
[end of help]
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters
  Frame1: Scale
    Label1: X scale
    Text1: "1"
    Label2: Y scale
    Text2: "1"
    Label3: Z scale
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Specify on screen
    Label4: Rotation angle (°)
    Text4: "0"
  Frame3: Leader line
    CheckBox2: [x] Draw a leader line
    Option1: (o) From a new point
    Option2: ( ) From the picked point
  OKButton: [OK]
> key F1
[help: en/paramins.html]
Insertion parameters
====================

How the label is inserted. Opened by Settings in the labelling.

Before you start
----------------
  - A field that is no number, with your system's separator, counts as 0. A
    scale of 0 inserts nothing, without a message: the leader line's points
    are asked for and the line is drawn all the same.
  - The leader line is ticked at the start.
  - Starting at the pick point goes with one automatic value only, and never
    with a clicked outline. Otherwise a message says so and the option goes
    back to a new point. Counter, layer and colour count too.

What the dialog shows
---------------------
  Scale
      X scale, Y scale, Z scale
  Rotation
      Rotation angle (°), in degrees
  Specify on screen
      ask for each label's orientation in the drawing; the angle typed is
      ignored
  Leader line
      Draw a leader line: a plain line for each label
  From a new point
      both ends are asked for
  From the picked point
      the line starts at the click that read the value; only the other end is
      asked for
  OK
      goes back to the labelling; there is no Cancel button

Example
-------

To mark the height of a point: mode Cote Z Auto on the attribute, From the
picked point here. The line starts at the point measured, and you click its
other end.

Limits
------
  - Choosing another block in the labelling puts the scales back to 1 and the
    angle to 0.
[end of help]
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Block data extraction
  Label0: Block name:
  Label1:
  Frame2: Extracted data
    ListView2: 0 rows
        #
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> key F1
[help: en/extract.html]
Block data extraction
=====================

Lists the references of a block in a table. The table is saved in a text file
which a spreadsheet and the re-insertion read. Command VNEXTRACT.

Before you start
----------------
  - A file of the same name is replaced without a question, and a write that
    fails isn't reported: check that the file is there.
  - Clear leaves the table unsaved: answering Yes to the question at the end
    then writes an empty file.
  - After a first save, cancelling the file dialog writes the same file again.
  - The rotation in the table is in radians. Numbers have your system's
    decimal separator, in the table and in the file.
  - Values are placed by the attribute's place. A reference with fewer
    attributes than the model has its layer and colour slip to the left; one
    with more stops the extraction.

What the dialog shows
---------------------
  Block name:
      the block of the table
  Extracted data
      a row for each reference
  New
      pick a reference as model, confirm, then select the zone
  Save
      write the table to a file, separated by tabs
  Clear
      empty the table
  Close
      end; a question comes if the table isn't saved. Answering Yes saves and
      brings the dialog back: click Close once more

The columns
-----------

Their headings are French in every language.
  N°
      the number of the reference, from 1
  X insertion, Y insertion, Z insertion
      the insertion point
  Ech. X, Ech. Y, Ech. Z
      the three scales
  Rotation
      in radians
  one for each attribute
      its value; the heading is the tag in the model
  Calque, Couleur
      the layer; the colour number, 256 for ByLayer

Example
-------
  1. Click New and pick one of the doors.
  2. Confirm with Reference zone and select the storey by a window.
  3. Click Save and name the file doors.txt, then Close.

If you cancel
-------------
  Esc while picking the model
      a question comes, OK asks again, Cancel brings the dialog back with the
      old table
  Cancel in Message
      the dialog comes back with the columns of the block picked, without rows
  Esc while selecting the zone
      the command has ended, the table is lost
  Cancelling the file dialog
      nothing is written the first time; after that the last file is written
      again

Limits
------
  - A tab within an attribute's value shifts the rest of its line in the file.
  - A character that the system's code page lacks is lost on writing.
[end of help]
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'ARBRE'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> key F1
[help: en/message.html]
Message
=======

Tells which block you have picked for the extraction and asks how to go on.

Before you start
----------------
  - Cancel doesn't bring the table of before back: its columns are already
    those of the block picked, and its rows are gone.
  - The frame's close box doesn't cancel: the selection of the zone follows.

What the dialog shows
---------------------
  Start again
      pick another reference
  Reference zone
      go on to the selection of references in the drawing
  Cancel
      go back to the extraction

Example
-------

You hit a column instead of the table: Start again, then click the table.
[end of help]
> CancelButton
[fmVnMessage] hidden
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnClose
[fmExtract] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 <<< Select
      5 _CLOSEDFILLED
      6 ARBRE
      7 BAIGNOIRE
      ... and 16 more
> key F1
[help: en/reinsert.html]
Block re-insertion
==================

Inserts a block for each line of a data file. A mapping says which column
gives the position, the scale, the rotation and each attribute. Command
VNINSERT.

Before you start
----------------
  - Decimals. A file with commas read under settings with points goes through,
    but 12,5 counts as 125. The other way round each line is refused and named
    at the end.
  - A second file in the same dialog keeps the columns of the first, and its
    line of column names becomes a line of data. Close and start the command
    again.
  - A file that isn't there gives no message: look whether the rows have come.
  - A second click on Insert inserts everything a second time.
  - The deltas do nothing unless the leader line is ticked.
  - The rotation is in radians.

What the dialog shows
---------------------
  Block name
      the block to insert; the two commands of the list, <<< Select and Browse
      >>>, pick it in the drawing or take it from a drawing file. In a drawing
      without any block the list is empty, these two included
  Insertion data
      choose the file, made by the extraction or by a spreadsheet
  Attributes of ''
      the mapping: a parameter on each row, and the column or the constant
      that gives it
  Value
      what the parameter of the row chosen takes: a column's name from the
      list, or a text that you type and that holds for every line
  Insertion data: ''
      the lines of the file
  Add a leader line
      move each block by DeltaX, DeltaY, DeltaZ and draw a line from its own
      position; possible as soon as a delta isn't 0
  Insert
      inserts; possible with a block and a file
  Close
      ends the command

The file
--------

A text separated by tabs: a title line, a line of column names, then a line
for each block. Unless you say otherwise the columns are told by their place,
which is that of the extraction: number, X, Y, Z, three scales, rotation,
attributes.

Example
-------

Place the points of a survey whose columns are Point, East, North, Height:
  1. Choose the block, then Insertion data and the file.
  2. Row X_: choose East. Row Y_: North. Row Z_: Height.
  3. Rows Ech.X, Ech.Y, Ech.Z: type 1. Row Rotation(rd): type 0.
  4. Row of the attribute of the number: choose Point. Click Insert.

If you cancel
-------------
  Esc while picking the block
      a question comes, OK asks again, Cancel brings the dialog back
  Cancelling Browse >>>
      empties the block name, but leaves its rows and the Insert button, which
      then does nothing
  Cancelling the dialog of data files
      reads the previous file again, and its lines then come without a line of
      column names
  The frame's close box
      the dialog comes back, emptied: only Close closes

Limits
------
  - The closing message begins with the end of the insertion, even when lines
    failed. Only lines with a number that can't be read are named, by their
    place in the table; the line of the file is that number plus 2. An unknown
    block gives nothing at all, without a word.
  - A line that fails may leave its leader line behind.
  - The two commands of the list are told by their place, first and second. A
    block whose name sorts before them, such as one that begins with an
    asterisk, takes that place: choosing it then runs the command.
  - Changing the block, or loading the first file, puts the whole mapping back
    to its order at the start.
  - Layer and colour of the file do nothing: the block goes to the current
    layer.
[end of help]
> BtnClose
[fmReInsert] hidden
Command: VNABOUT
[fmAbout] About Vorlane 1.0
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Website]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "English"
    > 0 English
      1 Français
  Label6: Choisir la langue
  OKButton: [OK]
> key F1
[help: en/about.html]
About Vorlane
=============

What Vorlane is, which version you have, and in which language it speaks to
you. Command VNABOUT.

Before you start
----------------
  - There is nothing to confirm: the choice of language is saved as it is
    made, and closing the dialog doesn't take it back.
  - You can type in the list. A name that isn't that of an installed language,
    even half typed, gives the first language of the list.

What the dialog shows
---------------------
  The first three lines
      the product and its version, the copyright, the address of the site
  The text
      what Vorlane does and its licence, in both languages; it is there to be
      read, not to be changed
  Website
      opens the product's page in the browser
  Choisir la langue
      the list of the languages installed; the prompt is in French for those
      who got lost
  OK
      closes the dialog

Example
-------

Choose Français from the list: the dialog turns French at once, and the choice
is saved. The next command shows its dialogs in French.

Limits
------
  - The other dialogs change language with the next command; that of the
    attribute transfer keeps it until you leave the drawing program.
  - Some texts stay French in every language, and a few English; the contents
    page lists them.
  - A further language is added by dropping its file into the install folder.
[end of help]
> OKButton
[fmAbout] hidden
Command: VNHELP
[help: en/start.html]
Vorlane help
============

Vorlane works on the block references of the open drawing. Where you would
deal with one reference at a time, it deals with all of them together.

The commands
------------
  Block replacement
      VNREPLACE: replace all references of a block with another block, with
      scales, rotation and attributes carried over or not.
  Labelling
      VNLABEL: insert a block as often as you click and fill its attributes
      with values read from the drawing: coordinates, length, area, layer, a
      counter.
  Block data extraction
      VNEXTRACT: list the references of a block in a table, then in a text
      file.
  Block re-insertion
      VNINSERT: insert a block for each line of such a file.
  About Vorlane
      VNABOUT: the version and the choice of language.
  Vorlane help
      VNHELP: this page. F1 in a dialog opens that dialog's page.

An unexpected message, an error with a number, nothing at all? When Vorlane
says…

The other dialogs
-----------------
  - Attribute value transfer settings, opened by the replacement
  - Message, during the extraction
  - Attribute format and Insertion parameters, opened by the labelling

What holds everywhere
---------------------
  - Decimals. Numbers are written with your system's decimal separator: the
    point under English settings, the comma under French ones. A data file
    made on a machine with commas can't be read as it stands on a machine with
    points: 12,5 becomes 125 there, without a warning. The other way round its
    lines are refused.
  - Layer. New references and lines go to the current layer, in model space.
  - Radians. Rotation is in radians in the replacement, the extraction and the
    re-insertion; in degrees in the labelling only. A quarter turn is 1.5708
    radians, half a turn 3.1416.
  - Esc. Esc during a pick in the drawing gives that pick up. Depending on the
    command, the dialog comes back or the command ends: each page tells. What
    has been inserted stays in the drawing.
  - Undo. A whole command is undone in one step, by U or Ctrl+Z.

Glossary
--------
  English
  French
      block reference
      référence de bloc
      insertion point, scale, rotation
      point d'insertion, échelle, rotation
      attribute, tag, value
      attribut, étiquette d'attribut, valeur
      pick; select
      désigner ; sélectionner
      zone: the part of the drawing that is treated
      zone
      layer, current layer, locked layer
      calque, calque courant, calque verrouillé
      model space, layout
      espace objet, présentation
      leader line
      ligne ou trait de repérage, ligne de repère
      outline
      contour
      transfer, pairing or mapping
      transcription, correspondance

What stays French in every language
-----------------------------------

These texts come from no language file.
  Value modes
  What they give
      Saisie manuel
      the value typed
      Abscisse X Auto, Ordonnée Y Auto, Cote Z Auto
      X, Y, Z of a point
      Longueur, Périmètre, Aire Auto Monoclic
      length, perimeter, area of an object picked by one click
      Longueur, Périmètre, Aire Auto Polyclic
      the same of an outline of several clicks
      Incrément Auto
      a counter
      Nom du Calque, Couleur
      layer name, colour
  Columns
  Meaning
      Attribut, Etiquette, Valeur, Mode de détermination
      attribute, tag, value, value mode
      Attribut dans le bloc source, de destination
      attribute in the source block, in the destination block
      N°, X insertion, Ech. X, Rotation, Calque, Couleur
      number, X of the insertion point, X scale, rotation, layer, colour
      Paramètre, Colonne-valeurs
      parameter, column or value
      X_, Ech.X, Rotation(rd), DeltaX
      X, X scale, rotation in radians, offset in X
  Questions in the drawing
  What is asked for
      Indiquer le point d'insertion du bloc :
      the label's insertion point
      Indiquer l'orientation :
      its orientation
      Indiquer le 1er point, le 2è point de la ligne de repère :
      first, second point of the leader line
      Selectionner le point à repérer.
      the point whose coordinates are read
      Selectionner le contour ou l'objet.
      the object that is measured
      Cliquer sur le premier point, le point suivant pour le contour polyclic
      :
      first, next point of the outline
      Selectionner l'étiquette à insérer :
      the block to insert

Also French: "Vorlane : Erreur", the box about the leader line; "Erreur" and a
number as a command starts; "L'objet selectionné n'est pas un bloc." in the
re-insertion; titles and kinds of the file dialogs. English in every language:
"The following error has occurred trying to replace a block: ".
[end of help]
Opened apartment.dxf
; drawing: samples/apartment.dxf | fr
; language: fr
; options: --regional fr
; F1 opens each dialog's page, the help command the start page.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Remplacement de blocs
  Frame1: Blocs à remplacer
    Label3: Nom de bloc
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        ... and 12 more
    BtnSelectName: [Sélectionner]
    Label4: Zone de référence
    optZoneAll: (o) Tout le dessin
    BtnSelectZone: [Sélectionner] (disabled)
    optZoneSelection: ( ) Sélection
  Frame2: Bloc de remplacement
    Label5: Nom du bloc
    CboBlocReplacer: ""
        0 <<< Sélectionner
        1 Parcourir >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
    Label1: Paramètres d'insertion ( Cocher pour modifier )
    chkRotation: [ ] Rotation
    txtRotation: "Conserver" (disabled)
    chkVisibility: [ ] Visibilité
    cboVisibility: "Conserver" (disabled)
        0 Visible
        1 Non visible
      > 2 Conserver
    chkXScale: [ ] Echelle en X
    txtXScale: "Conserver" (disabled)
    chkYScale: [ ] Echelle en Y
    txtYScale: "Conserver" (disabled)
    chkZScale: [ ] Echelle en Z
    txtZScale: "Conserver" (disabled)
    ChkAttSet: [ ] Transcription de valeurs d'attributs (disabled)
    BtnAttSet: [Parametrer] (disabled)
  BtnReplace: [Remplacer]
  BtnClose: [Fermer]
  Label2: Nombre de blocs à remplacer :
  LblNbrSelected: 1
> key F1
[help: fr/replace.html]
Remplacement de blocs
=====================

Remplace les références d'un bloc par des références d'un autre, au même
endroit. Ce qui n'est pas coché est repris de l'ancienne référence. Commande
VNREPLACE.

Avant de commencer
------------------
  - Une référence sur un calque verrouillé ne peut pas être effacée : le
    remplacement s'arrête là, avec l'ancienne et la nouvelle au même endroit.
    Déverrouillez avant, ou annulez la commande après.
  - Une référence invisible devient visible : pour la visibilité, Conserver ne
    reprend rien. Pour les échelles et la rotation, la valeur de l'ancienne
    référence est reprise.
  - Le calque, la couleur et le type de ligne ne sont pas repris : la nouvelle
    référence est sur le calque courant, dans l'espace objet, même si
    l'ancienne était dans une présentation. Rendez d'abord courant le calque
    voulu ; sous Linux, (setvar "VNKEEP" "layer,colour,linetype") fait
    reprendre les trois.
  - Une valeur source vide efface la valeur par défaut de l'attribut où elle
    est reportée.
  - La rotation est en radians : pour un quart de tour tapez 1,5708, non 90.
  - Le message de succès vient aussi quand il n'y avait rien à remplacer.
    Regardez le nombre avant.

Blocs à remplacer
-----------------
  Nom de bloc
      les blocs insérés dans le dessin ; celui qui est choisi sera remplacé.
      Les listes montrent aussi les blocs sans nom, *D… des cotes et *U… des
      blocs dynamiques ; comme la liste est triée, l'un d'eux peut être choisi
      à l'ouverture
  Sélectionner
      (sous la liste) désigner une référence du bloc dans le dessin
  Zone de référence : Tout le dessin
      toutes les références du bloc, y compris celles des présentations
  Zone de référence : Sélection
      seulement celles que vous sélectionnez ; la sélection commence aussitôt
  Sélectionner
      (à côté de Sélection) refaire la sélection
  Nombre de blocs à remplacer :
      ce que la zone contient, cotes comprises pour un bloc *D… ; la commande
      LIST de Vorlane sous Linux ne les compte pas

Bloc de remplacement
--------------------
  Nom du bloc
      un bloc du dessin, à choisir ou à taper ; les deux commandes de la liste
      sont <<< Sélectionner, qui le désigne dans le dessin, et Parcourir >>>,
      qui le prend dans un fichier de dessin
  Paramètres d'insertion ( Cocher pour modifier )
      une case cochée remplace la valeur ; une case vide laisse Conserver
  Rotation
      en radians
  Visibilité
      Visible, Non visible, ou Conserver
  Echelle en X, Echelle en Y, Echelle en Z
      les trois échelles ; une valeur négative donne le symétrique du bloc
  Transcription de valeurs d'attributs
      reporter les valeurs des anciens attributs dans les nouveaux ; possible
      seulement quand les deux blocs ont des attributs et que le second a été
      choisi dans la liste : après une frappe ou après <<< Sélectionner, la
      case reste grisée
  Parametrer
      dire quel attribut alimente quel autre
  Remplacer
      fait le travail ; la boîte reste ouverte
  Fermer
      termine la commande

Exemple
-------

Remplacer toutes les portes PORTE_80 par PORTE_90, en gardant leur repère :
  1. Choisir PORTE_80 dans Nom de bloc. Le nombre de références s'affiche en
     bas : 16.
  2. Choisir PORTE_90 dans la liste Nom du bloc.
  3. Cocher Transcription de valeurs d'attributs, cliquer Parametrer et
     associer REPERE à CODE.
  4. Cliquer Remplacer, puis Fermer.

Si vous annulez
---------------
  Échap en désignant le bloc à remplacer
      un objet qui n'est pas un bloc, ou rien : une question vient, OK
      redemande, Annuler abandonne. Après l'abandon la commande est terminée :
      relancez-la
  Échap pendant la sélection de la zone
      la commande est terminée : relancez-la
  Abandon après <<< Sélectionner
      la boîte revient avec le nom d'avant
  Annuler Parcourir >>>
      la boîte revient, le nom du bloc est vide
  Décocher une case
      fait perdre la valeur tapée ; la recocher repart de 1, ou de 0 pour la
      rotation
  Après Remplacer
      l'annulation du logiciel de dessin reprend toute la commande en une fois

Limites
-------
  - Plus de 32 767 références d'un coup sont refusées.
  - Une cote ne peut pas être remplacée : pour un bloc *D… le remplacement
    échoue avec l'erreur 438.
  - Un second clic sur Remplacer échoue, puisque les références de la zone
    n'existent plus. Choisissez d'abord la zone, ou le bloc, à nouveau.
  - Changer de bloc à remplacer remet la zone à Tout le dessin.
  - Le contrôle des nombres a lieu à chaque frappe : vider le champ, ou
    commencer par un signe moins, affiche déjà le message ; cliquez OK et
    continuez.
  - Les références à l'intérieur d'autres blocs ne sont pas touchées.
[end of help]
> lstDestination = PORTE_80
> CboBlocReplacer # 20
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Paramètres de transcription des valeurs d'attributs
  Frame1: Tableau des correspondances
    ListView1: 3 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | REPERE |
        2 | LARGEUR |
        3 | FEU |
  Combo2: ""
      0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribut dans le bloc de destination :
  OKButton: [OK]
> key F1
[help: fr/attset.html]
Paramètres de transcription des valeurs d'attributs
===================================================

Dit quel attribut du bloc à remplacer alimente quel attribut du bloc de
remplacement. Boîte ouverte par Parametrer dans le remplacement.

Avant de commencer
------------------
  - Le tableau reste le même d'une commande à l'autre. Après un changement de
    bloc, rouvrez cette boîte : elle refait le tableau, tandis que Remplacer
    sans l'ouvrir se sert de l'ancien.
  - Les valeurs sont prises d'après la place de l'attribut dans la référence,
    non d'après son nom.
  - Une valeur source vide est reportée elle aussi : elle efface la valeur par
    défaut de l'attribut de destination.
  - Rien n'est proposé, même pour des attributs de même nom : une ligne vide
    ne reporte rien.

Ce que montre la boîte
----------------------
  Tableau des correspondances
      une ligne par attribut du bloc source ; à droite, l'attribut de
      destination, vide tant que rien n'est associé
  Attribut dans le bloc de destination :
      son étiquette d'attribut pour la ligne choisie ; le choix entre aussitôt
      dans le tableau
  OK
      ferme la boîte ; le tableau reste

Exemple
-------

La porte à remplacer a REPERE, LARGEUR et FEU, la porte nouvelle CODE, PASSAGE
et COUPE_FEU. Cliquez la ligne REPERE et choisissez CODE : chaque porte garde
son repère. LARGEUR reste sans correspondance, car la largeur de 80 serait
fausse sur une porte de 90 ; FEU aussi, car ses valeurs vides effaceraient
« néant ».

Si vous annulez
---------------

Il n'y a pas de bouton Annuler. Une association ne s'efface pas, elle se
déplace seulement. Pour repartir de zéro, fermez la boîte par sa case de
fermeture : le tableau est alors perdu, et refait vide la fois suivante.

Limites
-------
  - Deux lignes vers le même attribut : c'est la plus haute qui l'emporte.
  - La boîte garde la langue de sa première ouverture jusqu'à la fermeture du
    logiciel de dessin.
[end of help]
> OKButton
[fmAttSet] hidden
> BtnClose
[fmReplace] hidden
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Etiquetage
  Label1: Nom du bloc à insérer :
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: _
    Text1: ""
    Combo1: "Saisie manuel" (disabled)
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        ... and 5 more
    BtnAttFormat: [...] (disabled) (tip: Format de l'attribut)
  BtnParametre: [Paramètres] (disabled)
  BtnInserer: [Insérer] (disabled)
  OKButton: [Fermer]
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> key F1
[help: fr/labels.html]
Etiquetage
==========

Insère un bloc, clic après clic, et remplit ses attributs avec des valeurs
tapées ou lues dans le dessin. Commande VNLABEL.

Avant de commencer
------------------
  - Une ligne de repérage est demandée à chaque étiquette tant qu'on ne la
    décoche pas dans Paramètre d'insertion.
  - Échap pendant la désignation d'un point ou d'un objet à lire : l'étiquette
    prend la valeur de la désignation précédente, sans message.
  - Un objet désigné sans longueur, périmètre ni circonférence, un texte ou un
    arc par exemple, ne donne rien pour ces modes : il ne reste que le préfixe
    et le suffixe. Un arc a une aire, un texte non. Un objet qui a deux de ces
    mesures donne leur somme.
  - Une région n'a son périmètre et son aire que dans AutoCAD : sa forme se
    trouve dans les données du modeleur d'AutoCAD. Sans AutoCAD elle ne donne
    rien.
  - Passer à une ligne réglée sur Incrément Auto remet son compteur à la
    valeur initiale.

Ce que montre la boîte
----------------------
  Nom du bloc à insérer :
      le bloc qui sert d'étiquette, à choisir ou à taper
  Sélectionner...
      le désigner dans le dessin
  Parcourir...
      le prendre dans un fichier de dessin
  Valeurs des attributs
      une ligne par attribut : son étiquette d'attribut, sa valeur, son mode ;
      sous la liste, la valeur et le mode de la ligne choisie
  ...
      le format du mode choisi : préfixe, suffixe, décimales ou compteur
  Paramètres
      échelles, rotation et ligne de repérage : Paramètre d'insertion
  Insérer
      commence à placer les étiquettes
  Fermer
      termine la commande

Les modes
---------
  Saisie manuel
      la valeur tapée
  Abscisse X Auto, Ordonnée Y Auto, Cote Z Auto
      une coordonnée d'un point ; un seul clic sert aux trois
  Longueur Auto Monoclic, Périmètre Auto Monoclic, Aire Auto Monoclic
      la mesure d'un objet désigné ; un seul clic sert aux trois, ainsi qu'au
      calque et à la couleur
  Longueur Auto Polyclic, Périmètre Auto Polyclic, Aire Auto Polyclic
      la mesure d'un contour cliqué point par point, terminé par Entrée ou
      Échap. Le dernier côté compte pour le périmètre et l'aire, pas pour la
      longueur. Les cotes Z des points sont ignorées. Moins de deux points
      donnent 0
  Incrément Auto
      un compteur, un par attribut
  Nom du Calque, Couleur
      ceux d'un objet désigné

Exemple
-------

Étiqueter les pièces d'un plan avec leur numéro et leur aire :
  1. Choisir le bloc d'étiquette.
  2. Cliquer la ligne du numéro, choisir Incrément Auto, puis ... : valeur
     initiale 1, pas 1.
  3. Cliquer la ligne de la surface, choisir Aire Auto Polyclic, puis ... :
     suffixe « m² » précédé d'une espace, 2 décimales.
  4. Cliquer Insérer. Pour chaque pièce : le point d'insertion, les coins de
     la pièce puis Entrée, et la ligne de repérage si elle est demandée.
  5. Échap au point d'insertion ramène la boîte.

Si vous annulez
---------------
  Échap après Sélectionner...
      une question vient, OK redemande, Annuler ramène la boîte avec le bloc
      d'avant
  au point d'insertion
      la série se termine proprement, la boîte revient
  à l'orientation
      rien n'est inséré, et les attributs de l'étiquette précédente sont
      redemandés et récrits
  à un point ou un objet à lire
      l'étiquette prend la valeur de la désignation précédente ; sans
      précédente, une valeur vide
  dans un contour cliqué
      le contour se termine, comme par Entrée
  au 1er point de la ligne de repérage
      le 2e point est encore demandé, puis la série s'arrête ; l'étiquette
      reste
  au 2e point de la ligne de repérage
      une ligne est tracée jusqu'au bout de celle d'avant, s'il y en a une ;
      la série s'arrête, l'étiquette reste

Les étiquettes déjà placées restent dans le dessin ; l'annulation du logiciel
de dessin reprend toute la commande en une fois.

Limites
-------
  - Deux séries d'Insérer à la suite continuent le compte. La première
    étiquette d'un compteur montre la valeur initiale telle que tapée, 001 par
    exemple ; les suivantes sont 2, 3, et ainsi de suite.
  - Avec les flèches du clavier, les champs sous la liste ont une ligne de
    retard. Cliquez plutôt.
  - Le format est retenu par mode, d'une séance à l'autre ; les valeurs et les
    modes des attributs ne le sont pas.
  - Choisir un autre bloc remet les échelles à 1 et la rotation à 0.
  - Après Parcourir annulé, le nom est vide mais les lignes restent, et
    Insérer aussi : il ne place rien.
[end of help]
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Format de l'attribut
  Label1: Attribut 1 :
  LabelTag: CODE
  OKButton: [OK]
  Label2: Mode de détermination :
  LabelMode: Aire Auto Monoclic
  CancelButton: [Annuler]
  Frame1: Valeur
    Label4: Préfixe
    Text1: ""
    Label5: Suffixe
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0"
      > 0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> key F1
[help: fr/attformat.html]
Format de l'attribut
====================

Règle ce qui entoure la valeur d'un attribut et comment elle s'écrit. Boîte
ouverte par ... dans l'étiquetage, pour la ligne choisie, dans tous les modes
sauf la saisie manuelle.

Avant de commencer
------------------
  - La valeur initiale et le pas se lisent avec un point décimal, quels que
    soient vos réglages : 0.5, non 0,5. Un texte qui n'est pas un nombre
    compte pour 0, sans message.
  - OK sur un compteur le remet à sa valeur initiale.
  - Le format appartient au mode : un attribut qui prendra ce mode plus tard
    le reçoit. Un autre attribut qui l'a déjà garde le sien tant que sa ligne
    n'est pas choisie à nouveau.

Ce que montre la boîte
----------------------
  Attribut 1 :
      son étiquette d'attribut ; le texte dit toujours 1
  Mode de détermination :
      le mode de la ligne
  Valeur
      le cadre des réglages, selon le mode
  Préfixe, Suffixe
      écrits avant et après la valeur, espaces compris
  Nombre de décimaux
      de 0 à 9, pour les coordonnées et les mesures ; la valeur est arrondie.
      La liste montre des masques, 0.00 pour deux décimales ; la valeur
      s'écrit avec le séparateur décimal de votre système
  Valeur initiale
      à la place des décimales, pour un compteur
  Pas d'incrémentation
      ce que le compteur ajoute à chaque étiquette ; négatif ou fractionnaire
      si l'on veut
  OK
      garde le format pour cet attribut et pour le mode
  Annuler
      ne change rien

Exemple
-------

Préfixe « L= », suffixe « m » précédé d'une espace, deux décimales : une
longueur de 12,346 s'écrit « L=12,35 m ».
[end of help]
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Paramètre d'insertion
  Frame1: Echelle
    Label1: Echelle longitudinale EX
    Text1: "1"
    Label2: Echelle transversale EY
    Text2: "1"
    Label3: Echelle verticale EZ
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Spécifier à l'écran
    Label4: Angle de rotation (°)
    Text4: "0"
  Frame3: Ligne de repérage
    CheckBox2: [x] Tracer une ligne de repérage
    Option1: (o) A partir d'un nouveau point
    Option2: ( ) A partir du point de sélection monoclic
  OKButton: [OK]
> key F1
[help: fr/paramins.html]
Paramètre d'insertion
=====================

Comment l'étiquette est insérée. Boîte ouverte par Paramètres dans
l'étiquetage.

Avant de commencer
------------------
  - Un champ qui n'est pas un nombre, avec le séparateur de votre système,
    compte pour 0. Une échelle de 0 n'insère rien, sans message : les points
    de la ligne de repérage sont demandés et la ligne est tracée tout de même.
  - La ligne de repérage est cochée au départ.
  - Le départ au point de sélection ne vaut que pour une seule valeur
    automatique, et jamais pour un contour cliqué. Sinon un message le dit et
    l'option revient à un nouveau point. Compteur, calque et couleur comptent
    aussi.

Ce que montre la boîte
----------------------
  Echelle
      Echelle longitudinale EX, Echelle transversale EY, Echelle verticale EZ
  Rotation
      Angle de rotation (°), en degrés
  Spécifier à l'écran
      demander l'orientation de chaque étiquette dans le dessin ; l'angle tapé
      est alors ignoré
  Ligne de repérage
      Tracer une ligne de repérage : une ligne simple par étiquette
  A partir d'un nouveau point
      les deux extrémités sont demandées
  A partir du point de sélection monoclic
      la ligne part du clic qui a servi à lire la valeur ; seule la seconde
      extrémité est demandée
  OK
      revient à l'étiquetage ; il n'y a pas de bouton Annuler

Exemple
-------

Pour coter l'altitude d'un point : mode Cote Z Auto sur l'attribut, A partir
du point de sélection monoclic ici. La ligne part du point relevé, vous
cliquez l'autre extrémité.

Limites
-------
  - Choisir un autre bloc dans l'étiquetage remet les échelles à 1 et l'angle
    à 0.
[end of help]
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> OKButton
[fmLabels] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Extraction des données des blocs
  Label0: Nom du bloc :
  Label1:
  Frame2: Données extraites
    ListView2: 0 rows
        #
  BtnNew: [Nouveau]
  BtnSave: [Enregistrer]
  BtnErase: [Effacer]
  BtnClose: [Fermer]
> key F1
[help: fr/extract.html]
Extraction des données des blocs
================================

Met les références d'un bloc en tableau. Le tableau s'enregistre dans un
fichier texte que lisent un tableur et la réinsertion. Commande VNEXTRACT.

Avant de commencer
------------------
  - Un fichier du même nom est remplacé sans question, et une écriture qui
    échoue n'est pas signalée : vérifiez que le fichier est là.
  - Effacer laisse le tableau non enregistré : répondre Oui à la question de
    fermeture écrit alors un fichier vide.
  - Après un premier enregistrement, annuler la boîte des fichiers récrit le
    même fichier.
  - La rotation du tableau est en radians. Les nombres ont le séparateur
    décimal de votre système, dans le tableau comme dans le fichier.
  - Les valeurs se rangent d'après la place de l'attribut. Une référence qui a
    moins d'attributs que le modèle voit son calque et sa couleur glisser vers
    la gauche ; une qui en a plus arrête l'extraction.

Ce que montre la boîte
----------------------
  Nom du bloc :
      le bloc du tableau
  Données extraites
      une ligne par référence
  Nouveau
      désigner une référence modèle, confirmer, puis sélectionner la zone
  Enregistrer
      écrire le tableau dans un fichier, séparé par des tabulations
  Effacer
      vider le tableau
  Fermer
      terminer ; une question vient si le tableau n'est pas enregistré.
      Répondre Oui enregistre et ramène la boîte : cliquez encore Fermer

Les colonnes
------------
  N°
      le rang de la référence, à partir de 1
  X insertion, Y insertion, Z insertion
      le point d'insertion
  Ech. X, Ech. Y, Ech. Z
      les trois échelles
  Rotation
      en radians
  une par attribut
      la valeur ; le titre est l'étiquette d'attribut du modèle
  Calque, Couleur
      le calque ; le numéro de couleur, 256 pour « DuCalque »

Exemple
-------
  1. Cliquer Nouveau et désigner une des portes.
  2. Confirmer par Zone de reférence et sélectionner l'étage par une fenêtre.
  3. Cliquer Enregistrer et nommer le fichier portes.txt, puis Fermer.

Si vous annulez
---------------
  Échap en désignant le modèle
      une question vient, OK redemande, Annuler ramène la boîte avec l'ancien
      tableau
  Annuler dans Message
      la boîte revient avec les colonnes du bloc désigné, sans lignes
  Échap pendant la sélection de la zone
      la commande est terminée, le tableau perdu
  Annuler la boîte des fichiers
      rien n'est écrit la première fois ; ensuite le dernier fichier est
      récrit

Limites
-------
  - Une tabulation dans une valeur d'attribut décale la fin de sa ligne dans
    le fichier.
  - Un caractère que la page de codes du système n'a pas est perdu à
    l'écriture.
[end of help]
> BtnNew
[fmExtract] hidden
Sélectionner l'étiquette à détailler :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: Vous avez selectionné le bloc 'ARBRE'
  BtnSelect: [Recommencer]
  OKButton: [Zone de reférence]
  CancelButton: [Annuler]
> key F1
[help: fr/message.html]
Message
=======

Dit quel bloc vous avez désigné pour l'extraction et demande comment
continuer.

Avant de commencer
------------------
  - Annuler ne ramène pas le tableau d'avant : ses colonnes sont déjà celles
    du bloc désigné, et ses lignes sont parties.
  - Fermer la boîte par sa case de fermeture n'annule pas : la sélection de la
    zone suit.

Ce que montre la boîte
----------------------
  Recommencer
      désigner une autre référence
  Zone de reférence
      passer à la sélection des références dans le dessin
  Annuler
      revenir à l'extraction

Exemple
-------

Vous avez touché un poteau au lieu de la table : Recommencer, puis cliquez la
table.
[end of help]
> CancelButton
[fmVnMessage] hidden
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> BtnClose
[fmExtract] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Réinsertion des blocs
  Frame1: Attributs de ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Valeur
    ComboBox1: ""
  Frame2: Données d'insertion : ''
    ListView2: 0 rows
        #
  Check1: [ ] Ajouter un trait de repérage (disabled)
  BtnData: [Données d'insertion]
  BtnInsert: [Insérer] (disabled)
  BtnClose: [Fermer]
  Label1: Nom du bloc
  Combo1: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 <<< Sélectionner
      5 _CLOSEDFILLED
      6 ARBRE
      7 BAIGNOIRE
      ... and 16 more
> key F1
[help: fr/reinsert.html]
Réinsertion des blocs
=====================

Insère un bloc pour chaque ligne d'un fichier de données. Une correspondance
dit quelle colonne donne la position, l'échelle, la rotation et chaque
attribut. Commande VNINSERT.

Avant de commencer
------------------
  - Décimales. Un fichier à virgules lu sous des réglages à point passe, mais
    12,5 y vaut 125. Dans l'autre sens, chaque ligne est refusée et nommée à
    la fin.
  - Un second fichier dans la même boîte garde les colonnes du premier, et sa
    ligne de titres devient une ligne de données. Fermez et relancez la
    commande.
  - Un fichier qui n'est pas là ne donne aucun message : regardez si les
    lignes sont arrivées.
  - Un second clic sur Insérer insère tout une seconde fois.
  - Les deltas ne font rien tant que le trait de repérage n'est pas coché.
  - La rotation est en radians.

Ce que montre la boîte
----------------------
  Nom du bloc
      le bloc à insérer ; les deux commandes de la liste, <<< Sélectionner et
      Parcourir >>>, le désignent dans le dessin ou le prennent dans un
      fichier de dessin. Dans un dessin sans aucun bloc la liste est vide, ces
      deux commandes comprises
  Données d'insertion
      choisir le fichier, fait par l'extraction ou par un tableur
  Attributs de ''
      la correspondance : un paramètre par ligne, et la colonne ou la
      constante qui le donne
  Valeur
      ce que vaut le paramètre de la ligne choisie : un nom de colonne de la
      liste, ou un texte tapé qui vaut pour toutes les lignes
  Données d'insertion : ''
      les lignes du fichier
  Ajouter un trait de repérage
      décaler chaque bloc de DeltaX, DeltaY, DeltaZ et tracer une ligne depuis
      sa position d'origine ; possible dès qu'un delta n'est pas 0
  Insérer
      insère ; possible avec un bloc et un fichier
  Fermer
      termine la commande

Le fichier
----------

Un texte séparé par des tabulations : une ligne de titre, une ligne de noms de
colonnes, puis une ligne par bloc. Sans réglage, les colonnes sont reconnues à
leur place, qui est celle de l'extraction : numéro, X, Y, Z, trois échelles,
rotation, attributs.

Exemple
-------

Placer les points d'un levé dont les colonnes sont « Point », « Est »,
« Nord », « Alti » :
  1. Choisir le bloc, puis Données d'insertion et le fichier.
  2. Ligne X_ : choisir Est. Ligne Y_ : Nord. Ligne Z_ : Alti.
  3. Lignes Ech.X, Ech.Y, Ech.Z : taper 1. Ligne Rotation(rd) : taper 0.
  4. Ligne de l'attribut du numéro : choisir Point. Cliquer Insérer.

Si vous annulez
---------------
  Échap en désignant le bloc
      une question vient, OK redemande, Annuler ramène la boîte
  Annuler Parcourir >>>
      vide le nom du bloc, mais laisse ses lignes et le bouton Insérer, qui ne
      fait alors rien
  Annuler la boîte des données
      relit le fichier d'avant, et ses lignes viennent alors sans ligne de
      titres
  Case de fermeture
      la boîte revient, vidée : seul Fermer ferme

Limites
-------
  - Le message final commence par le succès, même quand des lignes ont échoué.
    Seules les lignes dont un nombre ne se lit pas sont nommées, par leur rang
    dans le tableau ; la ligne du fichier est ce rang plus 2. Un bloc inconnu
    ne donne rien du tout, sans un mot.
  - Une ligne qui échoue peut laisser son trait de repérage.
  - Les deux commandes de la liste comptent par leur place, première et
    deuxième. Un bloc dont le nom passe avant elles, comme ceux qui commencent
    par une étoile, prend cette place : le choisir lance alors la commande.
  - Changer de bloc, ou charger le premier fichier, remet toute la
    correspondance à son ordre de départ.
  - Calque et couleur du fichier n'agissent pas : le bloc va sur le calque
    courant.
[end of help]
> BtnClose
[fmReInsert] hidden
Command: VNABOUT
[fmAbout] A propos de Vorlane 1.0
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Go Web]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "Français"
      0 English
    > 1 Français
  Label6: Select language
  OKButton: [OK]
> key F1
[help: fr/about.html]
A propos de Vorlane
===================

Ce qu'est Vorlane, sa version, sa langue. Commande VNABOUT.

Avant de commencer
------------------
  - Il n'y a rien à valider : le choix de la langue est enregistré dès qu'il
    est fait, et fermer la boîte ne l'annule pas.
  - La liste accepte la frappe. Un nom qui n'est pas celui d'une langue
    installée, même commencé, donne la première langue de la liste.

Ce que montre la boîte
----------------------
  Les trois premières lignes
      le produit et sa version, les droits, l'adresse du site
  Le texte
      ce que fait Vorlane et sa licence, dans les deux langues ; il se lit, il
      ne se modifie pas
  Go Web
      ouvre la page du produit dans le navigateur
  Select language
      la liste des langues installées ; l'invite est en anglais pour qui se
      serait perdu
  OK
      ferme la boîte

Exemple
-------

Choisissez English dans la liste : la boîte passe aussitôt en anglais et le
choix est enregistré. La commande suivante montre ses boîtes en anglais.

Limites
-------
  - Les autres boîtes changent de langue à la commande suivante ; celle de la
    transcription la garde jusqu'à la fermeture du logiciel de dessin.
  - Quelques textes restent français dans toutes les langues ; le sommaire en
    donne la liste.
  - Une langue de plus s'ajoute en déposant son fichier dans le dossier
    d'installation.
[end of help]
> OKButton
[fmAbout] hidden
Command: VNHELP
[help: fr/start.html]
Aide de Vorlane
===============

Vorlane travaille sur les références de bloc du dessin ouvert. Au lieu d'une
référence à la fois, Vorlane les traite toutes d'un coup.

Les commandes
-------------
  Remplacement de blocs
      VNREPLACE : remplacer toutes les références d'un bloc par un autre bloc,
      avec ou sans reprise des échelles, de la rotation et des attributs.
  Etiquetage
      VNLABEL : insérer un bloc autant de fois que l'on clique et remplir ses
      attributs avec des valeurs lues dans le dessin : coordonnées, longueur,
      aire, calque, compteur.
  Extraction des données des blocs
      VNEXTRACT : mettre les références d'un bloc en tableau, puis dans un
      fichier texte.
  Réinsertion des blocs
      VNINSERT : insérer un bloc pour chaque ligne d'un tel fichier.
  A propos de Vorlane
      VNABOUT : la version et le choix de la langue.
  Aide de Vorlane
      VNHELP : cette page. F1 dans une boîte de dialogue ouvre la page de
      cette boîte.

Un message inattendu, une erreur avec un numéro, rien du tout ? Quand Vorlane
dit…

Les autres boîtes de dialogue
-----------------------------
  - Paramètres de transcription des valeurs d'attributs, ouverte par le
    remplacement
  - Message, pendant l'extraction
  - Format de l'attribut et Paramètre d'insertion, ouvertes par l'étiquetage

Ce qui vaut partout
-------------------
  - Décimales. Un nombre s'écrit avec le séparateur décimal de votre système :
    la virgule sous des réglages français, le point sous des réglages anglais.
    Un fichier de données créé sur un poste réglé sur la virgule décimale ne
    se relit pas tel quel sur un poste à point : 12,5 y devient 125, sans
    avertissement. Dans l'autre sens, les lignes sont refusées.
  - Calque. Les références et les lignes nouvelles vont sur le calque courant,
    dans l'espace objet.
  - Radians. La rotation est en radians dans le remplacement, l'extraction et
    la réinsertion ; en degrés dans l'étiquetage seulement. Un quart de tour
    vaut 1,5708 radian, un demi-tour 3,1416.
  - Échap. Échap pendant une désignation l'abandonne. Selon la commande, la
    boîte revient ou la commande s'arrête : chaque page le dit. Ce qui est
    déjà inséré reste dans le dessin.
  - Annuler. Une commande entière s'annule en une fois, par U ou Ctrl+Z.

Glossaire
---------
  Français
  Anglais
      référence de bloc
      block reference
      point d'insertion, échelle, rotation
      insertion point, scale, rotation
      attribut, étiquette d'attribut, valeur
      attribute, tag, value
      désigner ; sélectionner
      pick; select
      zone
      zone: the part of the drawing that is treated
      calque, calque courant, calque verrouillé
      layer, current layer, locked layer
      espace objet, présentation
      model space, layout
      ligne ou trait de repérage, ligne de repère
      leader line
      contour
      outline
      transcription, correspondance
      transfer, pairing or mapping

Ce qui reste français, ou anglais, dans toutes les langues
----------------------------------------------------------

Ces textes ne viennent d'aucun fichier de langue ; la page anglaise en donne
la traduction.
  - Les modes de l'étiquetage, les colonnes des tableaux et du fichier de
    données, les questions posées dans le dessin par l'étiquetage et la
    réinsertion.
  - « Vorlane : Erreur », la boîte de la ligne de repérage ; « Erreur » et un
    numéro au lancement d'une commande ; « L'objet selectionné n'est pas un
    bloc. » dans la réinsertion ; les titres et les types de fichiers des
    boîtes de fichiers.
  - En anglais : « The following error has occurred trying to replace a
    block: ».
[end of help]
