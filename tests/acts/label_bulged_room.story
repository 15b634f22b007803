Opened apartment.dxf
; drawing: samples/apartment.dxf
; copy: samples/releve_piece.dxf
; options: --regional en
; check: result.dxf --imports
; run: print_references.py result.dxf RELEVE_PIECE
; run: print_measures.py result.dxf 23D
; The terrace, 8 by 2.85 with a bow of bulge 0.5 at one end. By hand: the bow's angle is 4 atan 0.5 = 1.8546, its radius
; 2.85 / 2 / 0.8 = 1.7813, so it is 3.3035 long and adds 1.7813^2 / 2 * (1.8546 - 0.96) = 1.4192:
; 8 + 8 + 2.85 + 3.3035 = 22.1535 round, 8 * 2.85 + 1.4192 = 24.2192 inside.
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
> file releve_piece.dxf
> show
  Label1: Block to insert:
  Combo2: "releve_piece"
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      8 CARTOUCHE
      9 CHAISE
      10 ENSEMBLE_REPAS
      11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
      18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 4 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
      > 1 | Attribut 1 | NUMERO | 00 | Saisie manuel
        2 | Attribut 2 | SURFACE | - | Saisie manuel
        3 | Attribut 3 | PERIMETRE | - | Saisie manuel
        4 | Attribut 4 | CALQUE | - | Saisie manuel
    Label3: Value of Attribut 1 :
    Text1: "00"
    Combo1: "Saisie manuel"
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
        11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
> ListView1 # 2
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: SURFACE
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
> Text2 =  m²
> Combo1 # 4
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 3
> Combo1 = Périmètre Auto Monoclic
(typed only; "Combo1 : Périmètre Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Text2 =  m
> Combo1 # 4
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 4
> Combo1 = Nom du Calque
(typed only; "Combo1 : Nom du Calque" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Text1 = <
> Text2 = >
> show
  Label1: Attribute 1:
  LabelTag: CALQUE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Nom du Calque
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: "<"
    Label5: Suffix
    Text2: ">"
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 1
> Combo1 = Couleur
(typed only; "Combo1 : Couleur" chooses the entry)
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
> show
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
> CheckBox2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :4,-1.5
Selectionner le contour ou l'objet. @23D
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf --imports
removed: none
added: 4 ATTDEF, 4 ATTRIB, 1 BLOCK, 1 BLOCK_RECORD, 1 ENDBLK, 1 INSERT, 1 LWPOLYLINE, 1 SEQEND
-- run print_references.py result.dxf RELEVE_PIECE
Model: at 4,-1.5,0 scale 1,1,1 rotation 0 layer 0 NUMERO='256' SURFACE='24.2192 m²' PERIMETRE='22.1535 m' CALQUE='<JARDIN>'
-- run print_measures.py result.dxf 23D
23D: length 22.153489 area 24.219201
