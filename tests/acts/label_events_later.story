Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --regional en
; check: result.dxf
; run: print_lines.py result.dxf 0
; run: print_references.py result.dxf ARBRE
; run: print_references.py result.dxf PORTE_90
; What breaks off a run in a later label: the labels placed before stay, and what they left is used again.
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
> Combo2 = ARBRE
(typed only; "Combo2 : ARBRE" chooses the entry)
; Escape at the leader's first point: the line starts where the one before did
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :1,-10
Indiquer le 1er point de la ligne de repère :1,-11
Indiquer le 2è point de la ligne de repère :1,-12
Indiquer le point d'insertion du bloc :2,-10
Indiquer le 1er point de la ligne de repère :esc
Indiquer le 2è point de la ligne de repère :2,-12
[fmLabels] Vorlane 1.0 : Labelling (again)
; Escape at the second point: the line ends where the one before did
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :3,-10
Indiquer le 1er point de la ligne de repère :3,-11
Indiquer le 2è point de la ligne de repère :3,-12
Indiquer le point d'insertion du bloc :4,-10
Indiquer le 1er point de la ligne de repère :4,-11
Indiquer le 2è point de la ligne de repère :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; Escape at the orientation, without attributes: the run ends after the line
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
> CheckBox1
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :5,-10
Indiquer l'orientation :90
Indiquer le 1er point de la ligne de repère :5,-11
Indiquer le 2è point de la ligne de repère :5,-12
Indiquer le point d'insertion du bloc :6,-10
Indiquer l'orientation :esc
Indiquer le 1er point de la ligne de repère :6,-11
Indiquer le 2è point de la ligne de repère :6,-12
[fmLabels] Vorlane 1.0 : Labelling (again)
; with attributes the label before is filled anew, and the run goes on; Escape at an attribute's pick gives the value of
; before
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> Combo1 = Incrément Auto
(typed only; "Combo1 : Incrément Auto" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Incrément Auto
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Valeur initiale
    Text3: ""
    Label7: Increment
    Text4: ""
> Text3 = 1
> Text4 = 1
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 2
> Combo1 = Cote Z Auto
(typed only; "Combo1 : Cote Z Auto" chooses the entry)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> CheckBox2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :7,-10
Indiquer l'orientation :0
Selectionner le point à repérer. 0,0,7
Indiquer le point d'insertion du bloc :8,-10
Indiquer l'orientation :esc
Selectionner le point à repérer. 0,0,8
Indiquer le point d'insertion du bloc :9,-10
Indiquer l'orientation :45
Selectionner le point à repérer. 0,0,9
Indiquer le point d'insertion du bloc :10,-10
Indiquer l'orientation :0
Selectionner le point à repérer. esc
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
Command: U
Undone.
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
The changes to result.dxf were not saved.
-- check result.dxf
removed: none
added: 12 ATTRIB, 8 INSERT, 6 LINE, 3 SEQEND
-- run print_lines.py result.dxf 0
1,-11,0 to 1,-12,0
1,-11,0 to 2,-12,0
3,-11,0 to 3,-12,0
4,-11,0 to 3,-12,0
5,-11,0 to 5,-12,0
6,-11,0 to 6,-12,0
-- run print_references.py result.dxf ARBRE
Model: at 11,-4.5,0 scale 1.2,1.2,1.2 rotation 18 layer JARDIN
Model: at 17.2,-1,0 scale 0.8,0.8,0.8 rotation 12 layer JARDIN
Model: at 2,-4.8,0 scale 1,1,1 rotation 15 layer JARDIN
Model: at 5.5,-4.6,0 scale 0.9,0.9,0.9 rotation 13.5 layer JARDIN
Model: at 1,-10,0 scale 1,1,1 rotation 0 layer 0
Model: at 2,-10,0 scale 1,1,1 rotation 0 layer 0
Model: at 3,-10,0 scale 1,1,1 rotation 0 layer 0
Model: at 4,-10,0 scale 1,1,1 rotation 0 layer 0
Model: at 5,-10,0 scale 1,1,1 rotation 90 layer 0
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 7,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='2' PASSAGE='8' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 9,-10,0 scale 1,1,1 rotation 45 layer 0 CODE='3' PASSAGE='9' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 10,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='4' PASSAGE='9' COUPE_FEU='néant' HUISSERIE='bois'
