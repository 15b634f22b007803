Opened apartment.dxf
; drawing: samples/apartment.dxf
; language: en
; copy: resources/languages/English.LNG
; before: mkdir -p data/vorlane
; before: LC_ALL=C sed 's/^:Language=.*/:Language=Espa\xF1ol\r/;s/^msg_54=.*/msg_54=Acerca de \r/;s/^001_6=.*/001_6=P\xE1gina web\r/;s/^006_5=.*/006_5=Nuevo\r/' English.LNG > data/vorlane/spanish.lng
; run: print_setting.py Lng
; A third language, dropped beside the two delivered ones. A choice is there at once in this dialog, and in the others
; from the next command on; a text that is no language falls back to the first.
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
> BtnClose
[fmExtract] hidden
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
      2 Español
  Label6: Choisir la langue
  OKButton: [OK]
> Combo1 = Español
(typed only; "Combo1 : Español" chooses the entry)
> show
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Página web]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "Español"
      0 English
      1 Français
    > 2 Español
  Label6: Choisir la langue
  OKButton: [OK]
> OKButton
[fmAbout] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Block data extraction
  Label0: Block name:
  Label1:
  Frame2: Extracted data
    ListView2: 0 rows
        #
  BtnNew: [Nuevo]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnClose
[fmExtract] hidden
Command: VNABOUT
[fmAbout] Acerca de Vorlane 1.0 (again)
> Combo1 = español
(typed only; "Combo1 : español" chooses the entry)
> show
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Website]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "English"
    > 0 English
      1 Français
      2 Español
  Label6: Choisir la langue
  OKButton: [OK]
> Combo1 = Français
(typed only; "Combo1 : Français" chooses the entry)
> BtnWeb
https://www.merovane.example/query.php?app=03&ver=01.00&act=00&lng=Français
> OKButton
[fmAbout] hidden
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
> BtnClose
[fmExtract] hidden
; the attribute table keeps the language of its first opening
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
> OKButton
[fmAttSet] hidden
> BtnClose
[fmReplace] hidden
Command: VNABOUT
[fmAbout] A propos de Vorlane 1.0 (again)
> Combo1 # 0
> close
[fmAbout] hidden
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
> lstDestination = PORTE_80
> CboBlocReplacer # 20
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Paramètres de transcription des valeurs d'attributs (again)
> OKButton
[fmAttSet] hidden
> BtnClose
[fmReplace] hidden
; closed by its frame, it comes back filled
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
      2 Español
  Label6: Choisir la langue
  OKButton: [OK]
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
-- run print_setting.py Lng
Lng=English
