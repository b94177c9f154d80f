select n.CountryName, a.City
from Addresses as a
join Countries as n on n.CountryCode = a.CountryCode
where a.AddressID in (
  select o.ShippingAddressID
  from Orders as o
  where exists (
    select *
    from "Order Lines" as l
    join Products as p on p.ProductID = l.ProductID
    where l.OrderID = o.OrderID and l.Quantity > 9
      and p.CategoryID = (select CategoryID from Categories where CategoryName = 'Power Tools')))
group by n.CountryName, a.City
order by n.CountryName, a.City
