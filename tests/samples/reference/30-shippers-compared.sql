with shipped as (
  select ShipperID, julianday(date(ShippedAt)) - julianday(OrderDate) as days, Freight
  from Orders
  where OrderDate >= '2025-01-01' and ShipperID is not null
)
select s.ShipperName, count(*), round(avg(t.days), 1) as days, round(sum(t.Freight), 2)
from shipped as t
join Shippers as s on s.ShipperID = t.ShipperID and s.ShipperName not like 'North Sea%'
group by s.ShipperID
order by days, s.ShipperName
