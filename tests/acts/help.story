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
endroit. Ce qui n'est pas coché est repris de l'ancienne référence.

Blocs à remplacer
-----------------
  Nom de bloc
      les blocs insérés dans le dessin ; celui qui est choisi sera remplacé
  Sélectionner
      (sous la liste) désigner une référence du bloc dans le dessin
  Zone de référence : Tout le dessin
      toutes les références du bloc, y compris celles des présentations
  Zone de référence : Sélection
      seulement celles que vous sélectionnez ; la sélection commence aussitôt
  Sélectionner
      (à côté de Sélection) refaire la sélection
  Nombre de blocs à remplacer :
      ce que la zone contient

Bloc de remplacement
--------------------
  Nom du bloc
      un bloc du dessin, à choisir ou à taper ; <<< Sélectionner le désigne
      dans le dessin, Parcourir >>> le prend dans un fichier de dessin
  Paramètres d'insertion ( Cocher pour modifier )
      une case cochée remplace la valeur ; une case vide laisse Conserver
  Rotation
      en radians
  Visibilité
      Visible, Non visible, ou Conserver
  Echelle en X, Echelle en Y, Echelle en Z
      les trois échelles ; une valeur négative retourne le bloc
  Transcription de valeurs d'attributs
      reporter les valeurs des anciens attributs dans les nouveaux ; possible
      seulement quand les deux blocs ont des attributs
  Parametrer
      dire quel attribut alimente quel autre
  Remplacer
      fait le travail ; la boîte reste ouverte
  Fermer
      termine la commande

Exemple
-------

Remplacer toutes les portes PORTE_80 par PORTE_90 :
  1. Choisir PORTE_80 dans Nom de bloc. Le nombre de références s'affiche en
     bas.
  2. Choisir PORTE_90 dans Nom du bloc.
  3. Cocher Transcription de valeurs d'attributs, cliquer Parametrer et
     associer les attributs.
  4. Cliquer Remplacer, puis Fermer.

Ce qui surprend
---------------
  - Conserver n'a pas partout le même sens. Pour les échelles et la rotation,
    la valeur de l'ancienne référence est reprise. Pour la visibilité, rien
    n'est fait : une référence invisible devient visible.
  - La rotation est en radians : 90 n'est pas un quart de tour, c'est 1,5708
    qu'il faut taper.
  - Le calque, la couleur et le reste ne sont pas repris : la nouvelle
    référence est sur le calque courant, dans l'espace objet, même si
    l'ancienne était dans une présentation.
  - Le message de succès vient aussi quand il n'y avait rien à remplacer.
    Regardez le nombre avant.
  - Un second clic sur Remplacer échoue, puisque les références de la zone
    n'existent plus. Choisissez d'abord la zone, ou le bloc, à nouveau.
  - Échap en désignant le bloc à remplacer, ou pendant la sélection de la
    zone, met fin à la commande : relancez-la. Échap après <<< Sélectionner
    ramène la boîte. Annuler Parcourir >>> vide le nom du bloc.
  - Changer de bloc à remplacer remet la zone à Tout le dessin.
  - Décocher une case perd la valeur tapée ; la recocher repart de 1, ou de 0
    pour la rotation.
  - Le contrôle des nombres a lieu à chaque frappe : vider le champ, ou
    commencer par un signe moins, amène déjà le message. Confirmez et
    continuez.
  - Une référence sur un calque verrouillé ne peut pas être effacée : le
    remplacement s'arrête là, avec l'ancienne et la nouvelle au même endroit.
    Déverrouillez avant.
  - Plus de 32 767 références d'un coup sont refusées.
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
remplacement. Ouverte par Parametrer dans le remplacement.

Ce que montre la boîte
----------------------
  Tableau des correspondances
      une ligne par attribut du bloc source ; à droite, l'attribut de
      destination, vide tant que rien n'est associé
  Attribut dans le bloc de destination :
      l'attribut de destination de la ligne choisie ; le choix entre aussitôt
      dans le tableau
  OK
      ferme la boîte ; le tableau reste

Exemple
-------

Le bloc source a NUMERO et LARGEUR, le bloc de destination a CODE et PASSAGE.
Cliquez la ligne NUMERO et choisissez CODE, puis la ligne LARGEUR et
choisissez PASSAGE.

Ce qui surprend
---------------
  - Rien n'est proposé, même pour des attributs de même nom : une ligne vide
    ne reporte rien.
  - Une association ne s'efface pas, elle se déplace seulement. Pour repartir
    de zéro, fermez la boîte par sa case de fermeture : le tableau est alors
    perdu, et refait vide la fois suivante.
  - Les valeurs sont prises d'après la place de l'attribut dans la référence,
    non d'après son nom.
  - Deux lignes vers le même attribut : la plus haute compte.
  - Le tableau reste le même d'une commande à l'autre. Après un changement de
    bloc, rouvrez cette boîte : elle refait le tableau, tandis que Remplacer
    sans l'ouvrir se sert de l'ancien.
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
> key F1
[help: fr/labels.html]
Etiquetage
==========

Insère un bloc, clic après clic, et remplit ses attributs avec des valeurs
tapées ou lues dans le dessin.

Ce que montre la boîte
----------------------
  Nom du bloc à insérer :
      le bloc qui sert d'étiquette, à choisir ou à taper
  Sélectionner...
      le désigner dans le dessin
  Parcourir...
      le prendre dans un fichier de dessin
  Valeurs des attributs
      une ligne par attribut : son étiquette, sa valeur, son mode ; sous la
      liste, la valeur et le mode de la ligne choisie
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
      la mesure d'un objet désigné ; un seul clic sert à tous, ainsi qu'au
      calque et à la couleur
  Longueur Auto Polyclic, Périmètre Auto Polyclic, Aire Auto Polyclic
      la mesure d'un contour cliqué point par point, terminé par Entrée
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
     suffixe « m² », 2 décimales.
  4. Cliquer Insérer. Pour chaque pièce : le point d'insertion, les coins de
     la pièce puis Entrée, et la ligne de repérage si elle est demandée.
  5. Échap au point d'insertion ramène la boîte.

Ce qui surprend
---------------
  - Une ligne de repérage est demandée à chaque étiquette tant qu'on ne la
    décoche pas dans Paramètre d'insertion.
  - Échap au point d'insertion termine proprement. Pendant une mesure,
    l'étiquette prend la valeur du clic précédent. À la ligne de repérage, la
    série s'arrête, l'étiquette reste. À l'orientation, l'étiquette précédente
    est remplie une seconde fois.
  - Un objet désigné sans longueur ni périmètre, un texte ou un arc par
    exemple, donne une valeur vide. Un objet qui a longueur et périmètre donne
    leur somme.
  - Le dernier côté d'un contour cliqué compte pour le périmètre et l'aire,
    pas pour la longueur. Les hauteurs ne comptent pas.
  - Passer à une ligne réglée sur Incrément Auto remet son compteur à la
    valeur initiale. Deux séries d'Insérer à la suite continuent le compte.
  - La première étiquette d'un compteur montre la valeur initiale telle que
    tapée, 001 par exemple ; les suivantes sont 2, 3, et ainsi de suite.
  - Avec les flèches du clavier, les champs sous la liste ont une ligne de
    retard. Cliquez plutôt.
  - Le format est retenu par mode, d'une séance à l'autre ; les valeurs et les
    modes des attributs ne le sont pas.
  - Choisir un autre bloc remet les échelles à 1 et la rotation à 0.
[end of help]
> Combo1 = Aire Auto Monoclic
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

Règle ce qui entoure la valeur d'un attribut et comment elle s'écrit. Ouverte
par ... dans l'étiquetage, pour la ligne choisie, dans tous les modes sauf la
saisie manuelle.

Ce que montre la boîte
----------------------
  Attribut 1 :
      l'étiquette de l'attribut ; le texte dit toujours 1
  Mode de détermination :
      le mode de la ligne
  Valeur
      le cadre des réglages, selon le mode
  Préfixe, Suffixe
      écrits avant et après la valeur, blancs compris
  Nombre de décimaux
      de 0 à 9, pour les coordonnées et les mesures ; la valeur est arrondie
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

Préfixe « L= », suffixe « m » précédé d'un blanc, masque 0.00 : une longueur
de 12,346 s'écrit « L=12,35 m ».

Ce qui surprend
---------------
  - Les masques montrent un point ; la valeur s'écrit avec le séparateur
    décimal de votre système.
  - La valeur initiale et le pas se lisent avec un point décimal, quels que
    soient vos réglages : 0.5, non 0,5. Un texte qui n'est pas un nombre
    compte pour 0, sans message.
  - Le format appartient au mode : un attribut qui prendra ce mode plus tard
    le reçoit. Un autre attribut qui l'a déjà garde le sien tant que sa ligne
    n'est pas choisie à nouveau.
  - OK sur un compteur le remet à sa valeur initiale.
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

Comment l'étiquette est insérée. Ouverte par Paramètres dans l'étiquetage.

Ce que montre la boîte
----------------------
  Echelle
      Echelle longitudinale EX, Echelle transversale EY, Echelle verticale EZ
  Rotation
      Angle de rotation (°), en degrés
  Spécifier à l'écran
      demander l'orientation de chaque étiquette dans le dessin ; l'angle tapé
      ne sert plus
  Ligne de repérage
      Tracer une ligne de repérage : une ligne simple par étiquette
  A partir d'un nouveau point
      les deux bouts sont demandés
  A partir du point de sélection monoclic
      la ligne part du clic qui a servi à lire la valeur ; seul le second bout
      est demandé
  OK
      revient à l'étiquetage ; il n'y a pas d'annulation

Exemple
-------

Pour coter l'altitude d'un point : mode Cote Z Auto sur l'attribut, A partir
du point de sélection monoclic ici. La ligne part du point relevé, vous
cliquez l'autre bout.

Ce qui surprend
---------------
  - La ligne de repérage est cochée au départ.
  - Le départ au point de sélection ne vaut que pour une seule valeur
    automatique, et jamais pour un contour cliqué. Sinon un message le dit et
    l'option revient à un nouveau point. Compteur, calque et couleur comptent
    aussi.
  - Un champ qui n'est pas un nombre, avec le séparateur de votre système,
    compte pour 0. Une échelle de 0 est refusée et rien n'est inséré.
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

Met les références d'un bloc en tableau : position, échelles, rotation,
attributs, calque, couleur. Le tableau s'enregistre dans un fichier texte que
lisent un tableur et la réinsertion.

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
      terminer ; une question vient si le tableau n'est pas enregistré

Exemple
-------
  1. Cliquer Nouveau et désigner une des portes.
  2. Confirmer par Zone de reférence et sélectionner l'étage par une fenêtre.
  3. Cliquer Enregistrer et nommer le fichier portes.txt.

Ce qui surprend
---------------
  - La rotation du tableau est en radians.
  - Les nombres ont le séparateur décimal de votre système, dans le tableau
    comme dans le fichier.
  - Un fichier du même nom est remplacé sans question, et une écriture qui
    échoue n'est pas signalée : vérifiez que le fichier est là.
  - Après un premier enregistrement, annuler la boîte des fichiers récrit le
    même fichier.
  - Répondre Oui à la question de fermeture enregistre et ramène la boîte :
    cliquez encore Fermer.
  - Échap en désignant le modèle ramène la boîte avec l'ancien tableau. Échap
    pendant la sélection de la zone met fin à la commande.
  - Les valeurs se rangent d'après la place de l'attribut. Une référence qui a
    moins d'attributs que le modèle voit ses calque et couleur glisser vers la
    gauche ; une qui en a plus arrête l'extraction.
  - Une tabulation dans une valeur d'attribut décale la fin de sa ligne dans
    le fichier.
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

Vous avez touché le bloc de la table au lieu de la chaise : Recommencer, puis
cliquez la chaise.

Ce qui surprend
---------------
  - Annuler vide le tableau d'avant : ses colonnes sont déjà celles du bloc
    désigné.
  - Fermer la boîte par sa case de fermeture n'annule pas : la sélection de la
    zone suit.
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

Insère un bloc à chaque ligne d'un fichier de données. Une correspondance dit
quelle colonne donne la position, l'échelle, la rotation et chaque attribut.

Ce que montre la boîte
----------------------
  Nom du bloc
      le bloc à insérer ; les deux commandes de la liste le désignent dans le
      dessin ou le prennent dans un fichier de dessin
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
colonnes, puis une ligne par bloc. Sans réglage, les colonnes sont prises dans
l'ordre de l'extraction : numéro, X, Y, Z, trois échelles, rotation,
attributs.

Exemple
-------

Placer les points d'un levé dont les colonnes sont « Point », « Est »,
« Nord », « Alti » :
  1. Choisir le bloc, puis Données d'insertion et le fichier.
  2. Ligne X_ : choisir Est. Ligne Y_ : Nord. Ligne Z_ : Alti.
  3. Lignes Ech.X, Ech.Y, Ech.Z : taper 1. Ligne Rotation(rd) : taper 0.
  4. Ligne de l'attribut du numéro : choisir Point. Cliquer Insérer.

Ce qui surprend
---------------
  - La rotation est en radians.
  - Décimales. Un fichier à points lu sous des réglages à virgule : chaque
    ligne est refusée et nommée à la fin. Un fichier à virgules lu sous des
    réglages à point passe, mais 12,5 y vaut 125.
  - Le message final commence par le succès, même quand des lignes ont échoué.
    Seules les lignes dont un nombre ne se lit pas sont nommées, par leur
    rang ; un bloc inconnu, lui, ne donne rien du tout, sans un mot.
  - Les deux commandes de la liste comptent par leur place, première et
    deuxième. Un bloc dont le nom passe avant elles, comme ceux qui commencent
    par une étoile, prend cette place : le choisir lance alors la commande.
  - Une ligne qui échoue peut laisser son trait de repérage.
  - Un second fichier dans la même boîte garde les colonnes du premier, et sa
    ligne de titres devient une ligne de données. Fermez et relancez la
    commande.
  - Changer de bloc, ou charger le premier fichier, remet toute la
    correspondance à son ordre de départ.
  - Calque et couleur du fichier n'agissent pas : le bloc va sur le calque
    courant.
  - Un second clic sur Insérer insère tout une seconde fois.
  - Échap en désignant le bloc ramène la boîte. Annuler la boîte des fichiers
    de dessin vide le nom du bloc ; annuler celle des données relit le fichier
    d'avant.
  - Seul Fermer ferme : après la case de fermeture, la boîte revient, vidée.
[end of help]
> BtnClose
[fmReInsert] hidden
Command: VNABOUT
[fmAbout] A propos de Vorlane 1.0
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Go Web]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de blocs d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "Français"
      0 English
    > 1 Français
  Label6: Select language
  OKButton: [OK]
> key F1
[help: fr/about.html]
A propos de Vorlane
===================

Qui est Vorlane, quelle est sa version, et dans quelle langue il vous parle.

Ce que montre la boîte
----------------------
  Les trois premières lignes
      le produit et sa version, les droits, l'adresse du site
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

Ce qui surprend
---------------
  - Il n'y a rien à valider : le choix est enregistré dès qu'il est fait, et
    fermer la boîte ne l'annule pas.
  - Les boîtes déjà ouvertes gardent leur langue jusqu'à la commande
    suivante ; celle de la transcription la garde jusqu'à la fermeture du
    logiciel de dessin.
  - La liste accepte la frappe. Un nom qui n'est pas celui d'une langue
    installée, même commencé, donne la première langue de la liste.
  - Quelques textes restent français dans toutes les langues : les modes de
    l'étiquetage, les colonnes de l'extraction, la plupart des questions
    posées dans le dessin.
  - Une langue de plus s'ajoute en déposant son fichier dans le dossier
    d'installation.
[end of help]
> OKButton
[fmAbout] hidden
Command: VNHELP
[help: fr/start.html]
Vorlane : l'aide
================

Vorlane travaille sur les références de blocs du dessin ouvert. Là où l'on
traiterait une référence à la fois, il les traite toutes ensemble.

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
      VNINSERT : insérer un bloc à chaque ligne d'un tel fichier.
  A propos de Vorlane
      VNABOUT : la version et le choix de la langue.
  Aide
      VNHELP : cette page. F1 dans une boîte de dialogue ouvre la page de
      cette boîte.

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
    Un fichier de données fait sur un poste à virgule ne se relit pas tel quel
    sur un poste à point : 12,5 y devient 125, sans avertissement. Dans
    l'autre sens, les lignes sont refusées.
  - Radians. La rotation est en radians dans le remplacement, l'extraction et
    la réinsertion ; en degrés dans l'étiquetage seulement. Un quart de tour
    vaut 1,5708 radian, un demi-tour 3,1416.
  - Échap. Échap pendant un choix à l'écran abandonne ce choix. Selon la
    commande, la boîte revient ou la commande s'arrête : chaque page le dit.
    Ce qui est déjà inséré reste dans le dessin.
  - Annuler. Une commande entière s'annule en une fois, par l'annulation du
    logiciel de dessin.
  - Calque. Les références et les lignes nouvelles vont sur le calque courant,
    dans l'espace objet.
[end of help]
The changes to apartment.dxf were not saved.
