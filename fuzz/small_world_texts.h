#pragma once
// A file of each kind, with a little of everything that the tools look for.

#include <string_view>

namespace norvik::fuzz {

inline constexpr std::string_view kFigure = R"({
version
	{
	number 4
	}
figureResFile :Runtime:Geometries:Man:man.obj
actor BODY:1
	{
	storageOffset 0 0 0
	geomHandlerGeom 13 BODY
	}
actor head:1
	{
	storageOffset 0 0 0
	geomHandlerGeom 13 head
	}
prop hat:1
	{
	storageOffset 0 0 0
	objFileGeom 0 0 :Runtime:Geometries:hat.obj
	}
controlProp CenterOfMass:1
	{
	}
actor BODY:1
	{
	name	Body
	on
	bend 0
	parent UNIVERSE
	channels
		{
		propagatingScale scale
			{
			name scale
			initValue 1
			hidden 0
			forceLimits 0
			min -100000
			max 100000
			trackingScale 0.004
			keys
				{
				static  0
				k  0  1
				}
			interpStyleLocked 0
			}
		valueParm PHMSmile
			{
			name GetStringRes(1028,4)
			initValue 0
			hidden 0
			forceLimits 4
			min 0
			max 1
			trackingScale 0.02
			keys
				{
				static  0
				k  0  0
				}
			interpStyleLocked 0
			valueOpDeltaAdd
				Figure 1
				head:1
				Smile
			deltaAddDelta 1.000000
			}
		}
	endPoint 0 1 0
	origin 0 0 0
	orientation 0 0 0
	}
actor head:1
	{
	name	GetStringRes(1024,2)
	on
	bend 1
	dynamicsLock 1
	hidden 0
	addToMenu 1
	parent BODY:1
	channels
		{
		twistY neck_twisty
			{
			name twst
			initValue 0
			}
		jointX neck_jointx
			{
			name jointx
			initValue 0
			hidden 1
			forceLimits 4
			min -30
			max 30
			trackingScale 1
			keys
				{
				static  0
				k  0  0
				}
			interpStyleLocked 0
			angles -20 10 -40 30
			otherActor BODY:1
			matrixActor NULL
			center 0 .5 0
			flipped
			doBulge 0
			jointMult 1
			}
		rotateY yrot
			{
			name Twist
			initValue 0
			hidden 0
			forceLimits 0
			min -100000
			max 100000
			trackingScale 1
			keys
				{
				static  0
				k  0  0
				}
			interpStyleLocked 0
			}
		targetGeom Smile
			{
			name Smile
			initValue 0
			hidden 0
			forceLimits 0
			min -100000
			max 100000
			trackingScale 0.02
			keys
				{
				static  0
				k  0  0
				}
			interpStyleLocked 0
			valueOpDeltaAdd
				Figure 1
				BODY:1
				PHMSmile
			deltaAddDelta 1.000000
			indexes 2
			numbDeltas 4
			deltas
				{
				d 0 0.001 0 -0.002
				d 2 -0.1 .5 1e-05
				}
			blendType 0
			}
		targetGeom Frown
			{
			name Frown
			initValue 0
			hidden 0
			forceLimits 0
			min -100000
			max 100000
			trackingScale 0.02
			keys
				{
				static  0
				k  0  0
				}
			interpStyleLocked 0
			indexes 1
			numbDeltas 4
			deltas
				{
				d 1 0 0 .25
				}
			blendType 0
			}
		}
	endPoint 0 2 0
	origin 0 1 0
	orientation 0 0 0
	}
prop hat:1
	{
	name	hat
	channels
		{
		}
	material felt
		{
		KdColor .5 .5 .5 1
		textureMap NO_MAP
		}
	}
figure
	{
	root BODY:1
	addChild BODY:1
		head:1
	inkyChain leg
		{
		name	Left Leg
		on
		addLink head:1
		goal BODY:1
		}
	allows head:1
	weld head:1
		BODY:1
	defaultPick head:1
	displayOn
	material skin
		{
		KdColor 1 .5 .25 1
		KaColor 0 0 0 1
		KsColor 0 0 .1 1
		TextureColor 1 1 1 1
		NsExponent 50
		tMin 0
		tMax 0
		tExpo 0
		bumpStrength 1
		ksIgnoreTexture 0
		reflectThruLights 0
		reflectThruKd 0
		textureMap "C:Poser:Runtime:textures:skin.bmp"
		0 0
		bumpMap NO_MAP
		reflectionMap NO_MAP
		transparencyMap NO_MAP
		ReflectionColor 1 1 1 1
		reflectionStrength 1
		}
	material lips
		{
		KdColor 1 0 0 1
		KaColor 0 0 0 1
		KsColor .1 .1 .1 1
		textureMap NO_MAP
		bumpMap NO_MAP
		}
	displayMode USEPARENT
	locked 0
	setGeomHandlerOffset 0 0 0
	}
}
)";

inline constexpr std::string_view kMesh = R"(# a man
mtllib man.mtl
v 0 0 0
v 1 0 0.5
v 1 1 0
v 0 1 -.25
v -0.5 2 0.125
vt 0 0
vt 1 0
vt 1 1
vt 0 1
g head
usemtl skin
f 1/1 2/2 3/3
f 1/1 3/3 4/4
g BODY
usemtl lips
f 3/3 4/4 5/1
)";

inline constexpr std::string_view kPose = R"({
version
	{
	number 4.01
	}
actor head:1
	{
	channels
		{
		targetGeom Smile
			{
			keys
				{
				k 0 .5
				}
			}
		rotateY yrot
			{
			keys
				{
				k 0 12
				}
			}
		}
	}
figure
	{
	material skin
		{
		KdColor 0 1 0 1
		}
	}
}
)";

inline constexpr std::string_view kMaterials = R"(newmtl skin
Kd 1 .5 .25
map_Kd skin.bmp
newmtl lips
Kd 1 0 0
)";

inline constexpr std::string_view kPhi = R"(objFile :Runtime:Geometries:Man:man.obj

1 BODY xyz
  2 head yzx

leg head
)";

inline constexpr std::string_view kProp = R"({
version
	{
	number 4
	}
prop hat
	{
	customGeom
		{
		numbVerts 3
		numbTVerts 0
		v 0 0 0
		v 1 0 0
		v 0 1 0
		g hat
		usemtl felt
		f 1/ 2/ 3/
		}
	}
prop hat
	{
	name	hat
	channels
		{
		}
	material felt
		{
		KdColor .5 .5 .5 1
		KaColor 0 0 0 1
		KsColor 0 0 0 1
		textureMap NO_MAP
		}
	locked 0
	}
doc
	{
	addProp hat
	}
}
)";

}  // namespace norvik::fuzz
