Opened apartment.dxf
; drawing: samples/apartment.dxf
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

Replaces the references of a block by references of another, at the same
place. What isn't ticked is taken over from the old reference.

Blocks to replace
-----------------
  Block name
      the blocks inserted in the drawing; the one chosen will be replaced
  Select
      (below the list) pick a reference of the block in the drawing
  Reference zone: Whole drawing
      all references of the block, those of layouts too
  Reference zone: Selection
      only those that you select; the selection starts at once
  Select
      (beside Selection) select again
  Number of blocks to replace:
      what the zone holds

Replacement block
-----------------
  Block name
      a block of the drawing, chosen or typed; <<< Select picks it in the
      drawing, Browse >>> takes it from a drawing file
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
      when both blocks have attributes
  Set up
      tell which attribute feeds which
  Replace
      does the work; the dialog stays open
  Close
      ends the command

Example
-------

Replace all doors PORTE_80 by PORTE_90:
  1. Choose PORTE_80 in the first Block name. The number of references shows
     at the bottom.
  2. Choose PORTE_90 in the second Block name.
  3. Tick Transfer attribute values, click Set up and pair the attributes.
  4. Click Replace, then Close.

What may surprise
-----------------
  - Unchanged doesn't mean the same everywhere. For scales and rotation, the
    old reference's value is taken over. For visibility nothing is done: an
    invisible reference becomes visible.
  - The rotation is in radians: 90 is no quarter turn, 1.5708 is what to type.
  - Layer, colour and the rest are not taken over: the new reference is on the
    current layer, in model space, even if the old one was in a layout.
  - The message of success comes also when there was nothing to replace. Look
    at the number before.
  - A second click on Replace fails, since the references of the zone are
    gone. Choose the zone, or the block, again first.
  - Esc while picking the block to replace, or while selecting the zone, ends
    the command: start it again. Esc after <<< Select brings the dialog back.
    Cancelling Browse >>> empties the block name.
  - Changing the block to replace puts the zone back to Whole drawing.
  - Unticking a box loses what you typed; ticking it again starts from 1, or
    from 0 for the rotation.
  - Numbers are checked at each key: an emptied field, or a minus sign to
    begin with, brings the message already. Confirm and go on.
  - A reference on a locked layer can't be erased: the replacement stops
    there, with the old one and the new one at the same place. Unlock first.
  - More than 32,767 references at once are refused.
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

What the dialog shows
---------------------
  Matching table
      a row for each attribute of the source block; on the right the
      destination attribute, empty as long as nothing is paired
  Attribute in the destination block:
      the destination attribute of the row chosen; the choice goes into the
      table at once
  OK
      closes the dialog; the table stays

Example
-------

The source block has NUMERO and LARGEUR, the destination block has CODE and
PASSAGE. Click the row NUMERO and choose CODE, then the row LARGEUR and choose
PASSAGE.

What may surprise
-----------------
  - Nothing is proposed, not even for attributes of the same name: an empty
    row copies nothing.
  - A pairing can't be removed, only moved. To start afresh, close the dialog
    by its close box: the table is lost then, and made anew, empty, the next
    time.
  - Values are taken by the attribute's place in the reference, not by its
    name.
  - Two rows for one attribute: the upper one counts.
  - The table stays from one command to the next. After a change of block,
    open this dialog again: it makes the table anew, whereas Replace without
    opening it uses the old one.
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
> key F1
[help: en/labels.html]
Labelling
=========

Inserts a block, click after click, and fills its attributes with values that
you type or that are read from the drawing.

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
  Saisie manuel
      the value that you typed
  Abscisse X Auto, Ordonnée Y Auto, Cote Z Auto
      X, Y or Z of a point; one click serves all three
  Longueur Auto Monoclic, Périmètre Auto Monoclic, Aire Auto Monoclic
      length, perimeter or area of an object that you pick; one click serves
      them all, and layer and colour too
  Longueur Auto Polyclic, Périmètre Auto Polyclic, Aire Auto Polyclic
      the same of an outline clicked point by point and ended by Enter
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
  3. Click the row of the area, choose Aire Auto Polyclic, then ...: suffix "
     m²", 2 decimals.
  4. Click Insert. For each room: the insertion point, the corners of the room
     and Enter, and the leader line if it is asked for.
  5. Esc at the insertion point brings the dialog back.

What may surprise
-----------------
  - A leader line is asked for at each label until you untick it in Insertion
    parameters.
  - Esc at the insertion point is the clean end. During a measure, the label
    takes the value of the click before. At the leader line the series ends
    and the label stays. At the orientation, the label before is filled a
    second time.
  - An object without length or perimeter, a text or an arc for instance,
    gives an empty value. An object that has a length and a perimeter gives
    their sum.
  - The closing side of a clicked outline counts for perimeter and area, not
    for the length. Heights don't count.
  - Going to a row with Incrément Auto puts its counter back to the initial
    value. Two series of Insert in a row go on counting.
  - The first label of a counter shows the initial value as you typed it, 001
    for instance; the next ones are 2, 3 and so on.
  - With the arrow keys, the fields below the list are one row behind. Click
    instead.
  - The format is remembered by mode, from one session to the next; the values
    and modes of attributes are not.
  - Choosing another block puts the scales back to 1 and the rotation to 0.
[end of help]
> Combo1 = Aire Auto Monoclic
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value taken by:
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

What the dialog shows
---------------------
  Attribute 1:
      the attribute's tag; the text always says 1
  Value taken by:
      the mode of the row
  Value
      the frame of the settings, by mode
  Prefix, Suffix
      written before and after the value, blanks included
  Nombre de décimaux
      number of decimals, 0 to 9, for coordinates and measures; the value is
      rounded
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

Prefix "L=", suffix "m" with a blank before it, mask 0.00: a length of 12.346
is written "L=12.35 m".

What may surprise
-----------------
  - The masks show a point; the value is written with your system's decimal
    separator.
  - Initial value and increment are read with a decimal point, whatever your
    settings: 0.5, not 0,5. A text that is no number counts as 0, without a
    message.
  - The format belongs to the mode: an attribute that takes the mode later
    receives it. Another attribute that has it already keeps its own until its
    row is chosen again.
  - OK on a counter puts it back to its initial value.
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
    Option2: ( ) From the one-click pick point
  OKButton: [OK]
> key F1
[help: en/paramins.html]
Insertion parameters
====================

How the label is inserted. Opened by Settings in the labelling.

What the dialog shows
---------------------
  Scale
      X scale, Y scale, Z scale
  Rotation
      Rotation angle (°), in degrees
  Specify on screen
      ask for each label's orientation in the drawing; the angle typed serves
      no more
  Leader line
      Draw a leader line: a plain line for each label
  From a new point
      both ends are asked for
  From the one-click pick point
      the line starts at the click that read the value; only the other end is
      asked for
  OK
      goes back to the labelling; there is no cancelling

Example
-------

To mark the height of a point: mode Cote Z Auto on the attribute, From the
one-click pick point here. The line starts at the point measured, and you
click its other end.

What may surprise
-----------------
  - The leader line is ticked at the start.
  - Starting at the pick point goes with one automatic value only, and never
    with a clicked outline. Otherwise a message says so and the option goes
    back to a new point. Counter, layer and colour count too.
  - A field that is no number, with your system's separator, counts as 0. A
    scale of 0 is refused and nothing is inserted.
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

Lists the references of a block in a table: position, scales, rotation,
attributes, layer, colour. The table is saved in a text file which a
spreadsheet and the re-insertion read.

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
      end; a question comes if the table isn't saved

Example
-------
  1. Click New and pick one of the doors.
  2. Confirm with Reference zone and select the storey by a window.
  3. Click Save and name the file doors.txt.

What may surprise
-----------------
  - The rotation in the table is in radians.
  - Numbers have your system's decimal separator, in the table and in the
    file.
  - A file of the same name is replaced without a question, and a write that
    fails isn't told: see that the file is there.
  - After a first save, cancelling the file dialog writes the same file again.
  - Answering Yes to the question at the end saves and brings the dialog back:
    click Close once more.
  - Esc while picking the model brings the dialog back with the old table. Esc
    while selecting the zone ends the command.
  - Values are placed by the attribute's place. A reference with fewer
    attributes than the model has its layer and colour slip to the left; one
    with more stops the extraction.
  - A tab within an attribute's value shifts the rest of its line in the file.
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

You hit the block of the table instead of the chair: Start again, then click
the chair.

What may surprise
-----------------
  - Cancel empties the table of before: its columns are those of the block
    picked already.
  - The frame's close box doesn't cancel: the selection of the zone follows.
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
gives the position, the scale, the rotation and each attribute.

What the dialog shows
---------------------
  Block name
      the block to insert; the two commands of the list pick it in the drawing
      or take it from a drawing file
  Insertion data
      choose the file, made by the extraction or by a spreadsheet
  Attributes of ''
      the mapping: a parameter on each row, and the column or the constant
      that gives it
  Value
      what the parameter of the row chosen is worth: a column's name from the
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
for each block. Unless you say otherwise the columns are taken in the order of
the extraction: number, X, Y, Z, three scales, rotation, attributes.

Example
-------

Place the points of a survey whose columns are Point, East, North, Height:
  1. Choose the block, then Insertion data and the file.
  2. Row X_: choose East. Row Y_: North. Row Z_: Height.
  3. Rows Ech.X, Ech.Y, Ech.Z: type 1. Row Rotation(rd): type 0.
  4. Row of the attribute of the number: choose Point. Click Insert.

What may surprise
-----------------
  - The rotation is in radians.
  - Decimals. A file with points read under settings with commas: each line is
    refused and named at the end. A file with commas read under settings with
    points goes through, but 12,5 counts as 125.
  - The closing message begins with the end of the insertion, even when lines
    failed. Only lines with a number that can't be read are named, by their
    place; an unknown block gives nothing at all, without a word.
  - The two commands of the list are told by their place, first and second. A
    block whose name sorts before them, such as one that begins with an
    asterisk, takes that place: choosing it then runs the command.
  - A line that fails may leave its leader line behind.
  - A second file in the same dialog keeps the columns of the first, and its
    line of column names becomes a line of data. Close and start the command
    again.
  - Changing the block, or loading the first file, puts the whole mapping back
    to its order at the start.
  - Layer and colour of the file do nothing: the block goes to the current
    layer.
  - A second click on Insert inserts everything a second time.
  - Esc while picking the block brings the dialog back. Cancelling the dialog
    of drawing files empties the block name; cancelling that of data files
    reads the file of before again.
  - Only Close closes: after the frame's close box the dialog comes back,
    emptied.
[end of help]
> BtnClose
[fmReInsert] hidden
Command: VNABOUT
[fmAbout] About Vorlane 1.0
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Web site]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de blocs d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
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
you.

What the dialog shows
---------------------
  The first three lines
      the product and its version, the copyright, the address of the site
  Web site
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

What may surprise
-----------------
  - There is nothing to confirm: the choice is saved as it is made, and
    closing the dialog doesn't take it back.
  - Dialogs that are already there keep their language until the next command;
    that of the attribute transfer keeps it until you leave the drawing
    program.
  - You can type in the list. A name that isn't that of an installed language,
    even half typed, gives the first language of the list.
  - Some texts stay French in every language: the modes of the labelling, the
    columns of the extraction, most questions asked in the drawing.
  - A further language is added by dropping its file into the install folder.
[end of help]
> OKButton
[fmAbout] hidden
Command: VNHELP
[help: en/start.html]
Vorlane: help
=============

Vorlane works on the block references of the open drawing. Where you would
deal with one reference at a time, it deals with all of them together.

The commands
------------
  Block replacement
      VNREPLACE: replace all references of a block by another block, with
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
  Help
      VNHELP: this page. F1 in a dialog opens that dialog's page.

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
  - Radians. Rotation is in radians in the replacement, the extraction and the
    re-insertion; in degrees in the labelling only. A quarter turn is 1.5708
    radians, half a turn 3.1416.
  - Esc. Esc during a pick in the drawing gives that pick up. Depending on the
    command, the dialog comes back or the command ends: each page tells. What
    has been inserted stays in the drawing.
  - Undo. A whole command is undone in one step, by the drawing program's
    undo.
  - Layer. New references and lines go to the current layer, in model space.
  - French. Value modes, column headings and most questions asked in the
    drawing stay French in every language.
[end of help]
The changes to apartment.dxf were not saved.
