Opened apartment.dxf
; drawing: samples/apartment.dxf
; exit: 1
; copy: tests/faults/drawing.dwg
; copy: tests/faults/truncated_entities.dxf
; A block file that can't be brought in: the dialogs keep silent, the command line tells the reason.
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
> CboBlocReplacer # 1
[fmReplace] hidden
+-- Open
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> file drawing.dwg
Not brought in: FOLDER/drawing.dwg is a DWG file, and no converter is installed: "tools/setup.sh --dwg" installs one, or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH
[fmReplace] Vorlane 1.0 : Block replacement (again)
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
> BtnImport
+-- Open
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> file truncated_entities.dxf
Not brought in: File error: FOLDER/truncated_entities.dxf:21: the file breaks off in section ENTITIES
> BtnImport
+-- Open
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> file drawing.dwg
Not brought in: FOLDER/drawing.dwg is a DWG file, and no converter is installed: "tools/setup.sh --dwg" installs one, or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH
> OKButton
[fmLabels] hidden
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
> Combo1 # 1
+-- Select a block file
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> file truncated_entities.dxf
Not brought in: File error: FOLDER/truncated_entities.dxf:21: the file breaks off in section ENTITIES
> BtnClose
[fmReInsert] hidden
; typed, the name of a file beside the drawing
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
> lstDestination = NORD
> CboBlocReplacer = drawing
> BtnReplace
Not brought in: FOLDER/drawing.dwg is a DWG file, and no converter is installed: "tools/setup.sh --dwg" installs one, or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH
! Error 53: FOLDER/drawing.dwg is a DWG file, and no converter is installed: "tools/setup.sh --dwg" installs one, or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH
vorlane-console: line 24: BtnReplace: Error 53: FOLDER/drawing.dwg is a DWG file, and no converter is installed: "tools/setup.sh --dwg" installs one, or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH
